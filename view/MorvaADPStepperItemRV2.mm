#import "MorvaADPStepperItemRV2.h"

@implementation MorvaADPStepperItemRV2

- (void)setViewAvailable:(BOOL)available {
  [self setEnabled:available];
  ViewState = available;
}

- (void)catchEventCall {
}

- (int32_t)getSteps {
  const int32_t steps = [self intValue];
  [self setIntegerValue:0];
  return steps;
}

@end
