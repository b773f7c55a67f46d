/// The plug-in's view of a print dialog, for tests.
#ifndef IMAGEPOSITION_TESTS_CONTROLLER_RECORDINGHOST_H
#define IMAGEPOSITION_TESTS_CONTROLLER_RECORDINGHOST_H

#import "MorvaADPPdeCallbackRV2.h"

#include "Journal.hpp"

/// Writes "host.ppdFile" and "host.printSettings" to its journal, if it has one.
@interface RecordingHost : NSObject <MorvaADPPdeCallbackRV2> {
@public
  imageposition::test::Journal *journal;
  ppd_file_t *ppd;
  PMPrintSettings settings;
  int ppdRequests;
  int settingsRequests;
  /// The request for print settings (from 1, counted since the test set this) that returns null.
  int failingSettingsRequest;
}
+ (RecordingHost *)hostWithPpd:(ppd_file_t *)ppd settings:(PMPrintSettings)settings;
@end

#endif
