/// What panels may ask the dialog for.
#ifndef IMAGEPOSITION_PANELS_PLUGINS_HOSTCALLBACK_H
#define IMAGEPOSITION_PANELS_PLUGINS_HOSTCALLBACK_H

#import "MorvaADPPdeCallbackRV2.h"

/// Gives plug-ins access to objects that the dialog owns. Returns null to a plug-in that keeps this
/// object longer than the dialog exists.
@interface HostCallback : NSObject <MorvaADPPdeCallbackRV2> {
  ppd_file_t *ppd;
  PMPrintSettings settings;
}

/// Owns neither; both must exist until `forget`.
- (id)initWithPpd:(ppd_file_t *)printer settings:(PMPrintSettings)job;
/// Returns null for both from now on.
- (void)forget;

@end

#endif
