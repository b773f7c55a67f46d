#import "MorvaADPButtonRV2.h"

#import <AppKit/AppKit.h>

@implementation MorvaADPButtonRV2

- (void)changeState:(id)state {
  [(id)self setEnabled:[state boolValue]];
}

@end
