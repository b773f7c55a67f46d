/// A print dialog for tests, as far as the plug-in sees one.
#ifndef IMAGEPOSITION_TESTS_CONTROLLER_RECORDINGHOST_H
#define IMAGEPOSITION_TESTS_CONTROLLER_RECORDINGHOST_H

#import "MorvaADPPdeCallbackRV2.h"

#include "Journal.hpp"

/// Writes "host.ppdFile" and "host.printSettings" into its journal, when it has one.
@interface RecordingHost : NSObject <MorvaADPPdeCallbackRV2> {
@public
  imageposition::test::Journal *journal;
  ppd_file_t *ppd;
  PMPrintSettings settings;
  int ppdRequests;
  int settingsRequests;
  /// That request for print settings, counted from 1 since the test set it, is answered with null.
  int settingsRequestWithoutAnswer;
}
+ (RecordingHost *)hostWithPpd:(ppd_file_t *)ppd settings:(PMPrintSettings)settings;
@end

#endif
