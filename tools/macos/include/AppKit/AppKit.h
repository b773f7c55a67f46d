/// The part of macOS's AppKit that the plug-in calls, for compiling without macOS. The version that
/// introduced each call is from Apple's public documentation.
#ifndef IMAGEPOSITION_TOOLS_MACOS_APPKIT_H
#define IMAGEPOSITION_TOOLS_MACOS_APPKIT_H

#import <Foundation/Foundation.h>

SINCE(10.0) @interface NSColor : NSObject
+ (NSColor *)blackColor SINCE(10.0);
+ (NSColor *)lightGrayColor SINCE(10.0);
@end

SINCE(10.0) @interface NSResponder : NSObject
@end

SINCE(10.0) @interface NSView : NSResponder
- (NSView *)superview SINCE(10.0);
- (NSArray *)subviews SINCE(10.0);
- (void)setHidden:(BOOL)hidden SINCE(10.3);
@end

SINCE(10.0) @interface NSControl : NSView
- (id)target SINCE(10.0);
- (void)setTarget:(id)target SINCE(10.0);
- (NSInteger)tag SINCE(10.0);
- (void)setEnabled:(BOOL)enabled SINCE(10.0);
- (NSString *)stringValue SINCE(10.0);
- (void)setStringValue:(NSString *)string SINCE(10.0);
- (int)intValue SINCE(10.0);
- (void)setIntegerValue:(NSInteger)value SINCE(10.5);
@end

SINCE(10.0) @interface NSText : NSView
- (NSString *)string SINCE(10.0);
- (NSRange)selectedRange SINCE(10.0);
- (void)setSelectedRange:(NSRange)range SINCE(10.0);
@end

SINCE(10.0) @interface NSTextField : NSControl
- (void)setTextColor:(NSColor *)colour SINCE(10.0);
- (NSText *)currentEditor SINCE(10.0);
- (void)textDidChange:(NSNotification *)notification SINCE(10.0);
@end

SINCE(10.0) @interface NSStepper : NSControl
@end

SINCE(10.0) @interface NSButton : NSControl
- (void)setTitle:(NSString *)title SINCE(10.0);
- (NSInteger)state SINCE(10.0);
- (void)setState:(NSInteger)state SINCE(10.0);
@end

SINCE(10.0) @interface NSBox : NSView
- (void)setTitle:(NSString *)title SINCE(10.0);
@end

SINCE(10.0) @interface NSBundle(NSNibLoading)
// Deprecated in 10.8, which introduced its successor.
+ (BOOL)loadNibNamed:(NSString *)name owner:(id)owner SINCE(10.0);
@end

#endif
