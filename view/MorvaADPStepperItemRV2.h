/// The up and down arrows beside an entry field.
#ifndef IMAGEPOSITION_VIEW_MORVAADPSTEPPERITEMRV2_H
#define IMAGEPOSITION_VIEW_MORVAADPSTEPPERITEMRV2_H

#import "MorvaADPItemProtocols.h"

#import <AppKit/AppKit.h>

/// Counts steps: its value is what has been clicked since the last `getSteps`.
@interface MorvaADPStepperItemRV2
    : NSStepper <ActionInterface, ViewAvailableInterface, StepperInterface> {
  BOOL ViewState; ///< What `setViewAvailable:` was last given.
}

- (void)setViewAvailable:(BOOL)available;
/// Empty.
- (void)catchEventCall;
/// The count, which is 0 afterwards.
- (int32_t)getSteps;

@end

#endif
