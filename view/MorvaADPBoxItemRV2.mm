#import "MorvaADPBoxItemRV2.h"

#import "LocalizedText.h"

@implementation MorvaADPBoxItemRV2

- (void)setViewAvailable:(BOOL)available {
  [self setHidden:available];
  ViewState = available;
}

- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle {
  [self setTitle:imageposition::localizedText(bundle, key)];
}

@end
