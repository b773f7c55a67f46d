#import "RecordingHost.h"

@implementation RecordingHost

+ (RecordingHost *)hostWithPpd:(ppd_file_t *)ppdFile settings:(PMPrintSettings)printSettings {
  RecordingHost *host = [[[RecordingHost alloc] init] autorelease];
  host->ppd = ppdFile;
  host->settings = printSettings;
  return host;
}

- (ppd_file_t *)ppdFile {
  ++ppdRequests;
  if (journal != nullptr)
    journal->add("host.ppdFile");
  return ppd;
}

- (PMPrintSettings)printSettings {
  ++settingsRequests;
  if (journal != nullptr)
    journal->add("host.printSettings");
  if (failingSettingsRequest > 0 && --failingSettingsRequest == 0)
    return nullptr;
  return settings;
}

@end
