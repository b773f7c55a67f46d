/// A job on a sample printer, and a separate file for its measurements.
#ifndef IMAGEPOSITION_TESTS_HOST_CORE_SETUP_ALIGNMENTFIXTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_CORE_SETUP_ALIGNMENTFIXTURE_HPP

#include "PrintJob.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>

#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>

namespace imageposition::test {

class WithAlignments : public testing::Test {
protected:
  void SetUp() override { setenv("XDG_CONFIG_HOME", folder_.path("config").c_str(), 1); }
  void TearDown() override { unsetenv("XDG_CONFIG_HOME"); }

  /// A two-sided job on the queue "office". The first call decides the printer.
  PrintJob &job() {
    if (!job_)
      job_ = std::make_unique<PrintJob>(
          arguments_, OpenedPrinter{"office", std::make_unique<PrinterDescription>(
                                                  PrinterDescription::fromFile(ppd_))});
    return *job_;
  }

  const TemporaryFolder folder_;
  Arguments arguments_;
  std::string ppd_ = IMAGEPOSITION_SAMPLES "/duplex-shift.ppd";
  std::ostringstream errors_;

private:
  std::unique_ptr<PrintJob> job_;
};

} // namespace imageposition::test

#endif
