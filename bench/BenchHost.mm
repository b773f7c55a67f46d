#import "BenchHost.h"

#import "TestPool.h"

#include <cstdlib>
#include <iostream>

@implementation BenchCallback

- (ppd_file_t *)ppdFile {
  return Ppd;
}

- (PMPrintSettings)printSettings {
  return Settings;
}

@end

namespace imageposition::bench {
namespace {

std::vector<std::string> supportingPrinter(std::vector<std::string> lines) {
  lines.insert(lines.begin(), "*AdjustDuplexPositionSupport: \"true\"");
  for (const std::string &line :
       test::TestPpd::option("Duplex", {"DuplexNoTumble", "DuplexTumble", "None"}))
    lines.push_back(line);
  return lines;
}

} // namespace

NSBundle *builtBundle() {
  static NSBundle *const bundle = [[NSBundle alloc] initWithPath:@IMAGEPOSITION_BUNDLE];
  if ([bundle principalClass] == Nil) {
    std::cerr << "The plug-in bundle cannot be loaded: " IMAGEPOSITION_BUNDLE << std::endl;
    std::exit(1);
  }
  return bundle;
}

BenchHost::BenchHost(NSBundle *resources, const std::vector<std::string> &ppdLines)
    : ppd_(supportingPrinter(ppdLines)), handle_(store_), callback_([[BenchCallback alloc] init]) {
  callback_->Ppd = ppd_;
  callback_->Settings = handle_.get();
  plugin_ = [[builtBundle() principalClass] alloc];
  [plugin_ initWithBundle:resources];
}

BenchHost::~BenchHost() {
  [plugin_ release];
  [callback_ release];
}

id BenchHost::makePanel() {
  NSArray *panels = [plugin_ PDEPanelsForType:@"BDB091F4-E57F-11D3-B5CC-0050E4603277"
                                 withHostInfo:callback_];
  return [[panels lastObject] retain];
}

} // namespace imageposition::bench
