#import "view/MorvaADPBoxItemRV2.h"

#import "view/LocalizedText.h"

@implementation MorvaADPBoxItemRV2

- (void)setViewAvailable:(BOOL)available {
  [self setHidden:available];
  ViewState = available;
}

- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle {
  [self setTitle:imageposition::localizedText(bundle, key)];
}

@end
