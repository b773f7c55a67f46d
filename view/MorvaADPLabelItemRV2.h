/// A name label or range label of a setting.
#ifndef IMAGEPOSITION_VIEW_MORVAADPLABELITEMRV2_H
#define IMAGEPOSITION_VIEW_MORVAADPLABELITEMRV2_H

#import "MorvaADPItemProtocols.h"

#import <AppKit/AppKit.h>

@interface MorvaADPLabelItemRV2 : NSTextField <ViewAvailableInterface, LocalizableInterface> {
  BOOL ViewState; ///< The last argument of `setViewAvailable:`.
}

/// Disabling turns the text light gray. Enabling does not change it back, on purpose: the caller
/// sets the colour.
- (void)setViewAvailable:(BOOL)available;
- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle;
- (void)setRangeStrings:(NSString *)text;

@end

#endif
