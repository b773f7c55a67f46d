/// A message of any length.
#ifndef IMAGEPOSITION_GUI_WIDGETS_MESSAGEVIEW_H
#define IMAGEPOSITION_GUI_WIDGETS_MESSAGEVIEW_H

#import "KeyScrollView.h"

/// Wraps its text, and scrolls if it is higher than the view.
@interface MessageView : KeyScrollView {
  NSTextField *label; ///< Owned by the view.
}
- (void)setStringValue:(NSString *)text;
- (BOOL)hasText;
@end

#endif
