/// The entry field of a signed integer.
#ifndef IMAGEPOSITION_VIEW_MORVAADPINTEGERTEXTFIELDITEMRV2_H
#define IMAGEPOSITION_VIEW_MORVAADPINTEGERTEXTFIELDITEMRV2_H

#import "MorvaADPItemProtocols.h"

#import <AppKit/AppKit.h>

/// Filters and clamps the text after every edit. The range is 0 to 0 until `setRange:Min:` is
/// called.
@interface MorvaADPIntegerTextFieldItemRV2
    : NSTextField <ActionInterface, ViewAvailableInterface, TextFieldInterface, IntegerInterface> {
  BOOL ViewState; ///< The last argument of `setViewAvailable:`.
  int32_t Max;
  int32_t Min;
}

- (void)setRange:(int32_t)max Min:(int32_t)min;
- (id)init;
/// Disabling turns the text light gray; enabling does not change it back, on purpose.
- (void)setViewAvailable:(BOOL)available;
/// Does nothing.
- (void)catchEventCall;
/// Called after every edit: replaces the text by its filtered form through `setString:`.
- (void)textDidChange:(NSNotification *)notification;
- (NSString *)getString;
/// The text read as an integer; the nearest limit if it does not fit into 32 bits.
- (int32_t)getInt;
/// Shows the string unfiltered.
- (void)setString:(NSString *)string;

@end

#endif
