#import "MorvaADPLabelItemRV2.h"

#import "LocalizedText.h"

@implementation MorvaADPLabelItemRV2

- (void)setViewAvailable:(BOOL)available {
  [self setEnabled:available];
  if (!available)
    [self setTextColor:[NSColor lightGrayColor]];
  ViewState = available;
}

- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle {
  [self setStringValue:imageposition::localizedText(bundle, key)];
}

- (void)setRangeStrings:(NSString *)text {
  [self setStringValue:text];
}

@end
