/// What is wrong with an entry, below its field.
#ifndef IMAGEPOSITION_GUI_WIDGETS_ERRORLABEL_H
#define IMAGEPOSITION_GUI_WIDGETS_ERRORLABEL_H

#import <AppKit/AppKit.h>

#include <string>

/// Hidden while there is no error.
@interface ErrorLabel : NSTextField

/// The error wraps at `width`. An empty one hides the label. Returns whether anything changed.
- (BOOL)showError:(const std::string &)error width:(CGFloat)width;

@end

#endif
