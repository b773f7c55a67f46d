/// The help's picture of how to measure.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_HELPPICTURE_H
#define IMAGEPOSITION_GUI_QUESTIONS_HELPPICTURE_H

#import <AppKit/AppKit.h>

/// A sheet with an image beside its place, and arrows from one to the other.
@interface HelpPicture : NSView
/// Depends on the size of text.
+ (NSSize)preferredSize;
@end

#endif
