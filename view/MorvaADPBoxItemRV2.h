/// A titled frame around a group of controls.
#ifndef IMAGEPOSITION_VIEW_MORVAADPBOXITEMRV2_H
#define IMAGEPOSITION_VIEW_MORVAADPBOXITEMRV2_H

#import "MorvaADPItemProtocols.h"

#import <AppKit/AppKit.h>

@interface MorvaADPBoxItemRV2 : NSBox <ViewAvailableInterface, LocalizableInterface> {
  BOOL ViewState; ///< The last argument of `setViewAvailable:`.
}

/// True hides the box, false shows it: the inverse of the other items, on purpose.
- (void)setViewAvailable:(BOOL)available;
/// Sets the title to the localized string.
- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle;

@end

#endif
