/// A print dialog for benchmarks: the built bundle, a printer, a job's settings.
#ifndef IMAGEPOSITION_BENCH_BENCHHOST_H
#define IMAGEPOSITION_BENCH_BENCHHOST_H

#import "MorvaADPPdeCallbackRV2.h"
#import "PrintCore.h"
#include "TestPpd.h"

#include <memory>
#include <string>
#include <vector>

/// Answers a plug-in's two questions.
@interface BenchCallback : NSObject <MorvaADPPdeCallbackRV2> {
@public
  ppd_file_t *Ppd;
  PMPrintSettings Settings;
}
@end

namespace imageposition::bench {

/// The bundle as it was built, loaded once per process.
NSBundle *builtBundle();

class BenchHost {
public:
  /// `resources` is where the panels take definitions and texts from; the interface file is always
  /// the built bundle's.
  explicit BenchHost(NSBundle *resources = builtBundle(),
                     const std::vector<std::string> &ppdLines = {});
  ~BenchHost();
  BenchHost(const BenchHost &) = delete;
  BenchHost &operator=(const BenchHost &) = delete;

  /// A new panel, which the caller owns.
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
