/// What panels may ask of the dialog.
#ifndef IMAGEPOSITION_HOST_HOSTCALLBACK_H
#define IMAGEPOSITION_HOST_HOSTCALLBACK_H

#import "MorvaADPPdeCallbackRV2.h"

/// Answers with what the dialog owns. A plug-in that keeps it longer than the dialog lives gets
/// null.
@interface HostCallback : NSObject <MorvaADPPdeCallbackRV2> {
  ppd_file_t *ppd;
  PMPrintSettings settings;
}

/// Owns neither.
- (id)initWithPpd:(ppd_file_t *)printer settings:(PMPrintSettings)job;
/// From now on both answers are null.
- (void)forget;

@end

#endif
