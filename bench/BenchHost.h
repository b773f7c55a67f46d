/// A print dialog for benchmarks, with the built bundle, a printer and a job's settings.
#ifndef IMAGEPOSITION_BENCH_BENCHHOST_H
#define IMAGEPOSITION_BENCH_BENCHHOST_H

#import "MorvaADPPdeCallbackRV2.h"
#import "PrintCore.h"
#include "TestPpd.h"

#include <memory>
#include <string>
#include <vector>

/// Gives the plug-in the PPD and the print settings.
@interface BenchCallback : NSObject <MorvaADPPdeCallbackRV2> {
@public
  ppd_file_t *Ppd;
  PMPrintSettings Settings;
}
@end

namespace imageposition::bench {

/// The built bundle, loaded once per process.
NSBundle *builtBundle();

class BenchHost {
public:
  /// The panels take definitions and localized strings from `resources`; the interface file is
  /// always the built bundle's.
  explicit BenchHost(NSBundle *resources = builtBundle(),
                     const std::vector<std::string> &ppdLines = {});
  ~BenchHost();
  BenchHost(const BenchHost &) = delete;
  BenchHost &operator=(const BenchHost &) = delete;

  /// A new panel; the caller owns it.
  id makePanel();

  ppd_file_t *ppd() const { return ppd_; }
  const PrintSettingsStore &job() const { return store_; }

private:
  test::TestPpd ppd_;
  PrintSettingsStore store_;
  PrintSettingsHandle handle_;
  BenchCallback *callback_;
  NSObject<PDEPlugIn> *plugin_;
};

} // namespace imageposition::bench

#endif
