/// A titled frame around a group of controls.
#ifndef IMAGEPOSITION_VIEW_MORVAADPBOXITEMRV2_H
#define IMAGEPOSITION_VIEW_MORVAADPBOXITEMRV2_H

#import "MorvaADPItemProtocols.h"

#import <AppKit/AppKit.h>

@interface MorvaADPBoxItemRV2 : NSBox <ViewAvailableInterface, LocalizableInterface> {
  BOOL ViewState; ///< What `setViewAvailable:` was last given.
}

/// True hides the box, false shows it: inverted against the other items, on purpose.
- (void)setViewAvailable:(BOOL)available;
/// The text becomes the title.
- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle;

@end

#endif
