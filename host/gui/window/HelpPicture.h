/// The picture that the help explains measuring with.
#ifndef IMAGEPOSITION_HOST_HELPPICTURE_H
#define IMAGEPOSITION_HOST_HELPPICTURE_H

#import <AppKit/AppKit.h>

/// A sheet with an image beside its place, and the arrows that lead it there.
@interface HelpPicture : NSView
/// For the text's size in use.
+ (NSSize)preferredSize;
@end

#endif
