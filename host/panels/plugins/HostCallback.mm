#import "HostCallback.h"

@implementation HostCallback

- (id)initWithPpd:(ppd_file_t *)printer settings:(PMPrintSettings)job {
  if ((self = [super init]) != nil) {
    ppd = printer;
    settings = job;
  }
  return self;
}

- (void)forget {
  ppd = nullptr;
  settings = nullptr;
}

- (ppd_file_t *)ppdFile {
  return ppd;
}

- (PMPrintSettings)printSettings {
  return settings;
}

@end
