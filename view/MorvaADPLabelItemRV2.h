/// A name label or range label of a setting.
#ifndef IMAGEPOSITION_VIEW_MORVAADPLABELITEMRV2_H
#define IMAGEPOSITION_VIEW_MORVAADPLABELITEMRV2_H

#import "MorvaADPItemProtocols.h"

#import <AppKit/AppKit.h>

@interface MorvaADPLabelItemRV2 : NSTextField <ViewAvailableInterface, LocalizableInterface> {
  BOOL ViewState; ///< What `setViewAvailable:` was last given.
}

/// Made unusable, the text turns light gray; made usable again it stays so, on purpose: whoever
/// makes the label usable chooses its colour.
- (void)setViewAvailable:(BOOL)available;
- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle;
- (void)setRangeStrings:(NSString *)text;

@end

#endif
