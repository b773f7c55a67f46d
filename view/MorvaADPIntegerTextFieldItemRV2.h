/// The entry field of a signed integer.
#ifndef IMAGEPOSITION_VIEW_MORVAADPINTEGERTEXTFIELDITEMRV2_H
#define IMAGEPOSITION_VIEW_MORVAADPINTEGERTEXTFIELDITEMRV2_H

#import "MorvaADPItemProtocols.h"

#import <AppKit/AppKit.h>

/// Filters and clamps every edit while it is typed. The range is 0 to 0 until `setRange:Min:`,
/// however the field was made.
@interface MorvaADPIntegerTextFieldItemRV2
    : NSTextField <ActionInterface, ViewAvailableInterface, TextFieldInterface, IntegerInterface> {
  BOOL ViewState; ///< What `setViewAvailable:` was last given.
  int32_t Max;
  int32_t Min;
}

- (void)setRange:(int32_t)max Min:(int32_t)min;
- (id)init;
/// As a label's: the light gray of an unusable field stays when it is made usable again, on
/// purpose.
- (void)setViewAvailable:(BOOL)available;
/// Empty.
- (void)catchEventCall;
/// Replaces the text by its filtered form through `setString:`, after every edit.
- (void)textDidChange:(NSNotification *)notification;
- (NSString *)getString;
/// The text read as an integer; beyond 32 bits the nearest limit.
- (int32_t)getInt;
/// Shows the text as it is.
- (void)setString:(NSString *)string;

@end

#endif
