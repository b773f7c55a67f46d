/// The up and down arrows beside an entry field.
#ifndef IMAGEPOSITION_VIEW_MORVAADPSTEPPERITEMRV2_H
#define IMAGEPOSITION_VIEW_MORVAADPSTEPPERITEMRV2_H

#import "MorvaADPItemProtocols.h"

#import <AppKit/AppKit.h>

/// Counts steps: its value is the number of clicks since the last `getSteps`, downward ones
/// negative.
@interface MorvaADPStepperItemRV2
    : NSStepper <ActionInterface, ViewAvailableInterface, StepperInterface> {
  BOOL ViewState; ///< The last argument of `setViewAvailable:`.
}

- (void)setViewAvailable:(BOOL)available;
/// Does nothing.
- (void)catchEventCall;
/// Returns the count and resets it to 0.
- (int32_t)getSteps;

@end

#endif
