/// A printer on the network that needs no driver.
#ifndef IMAGEPOSITION_TESTS_HOST_DRIVERLESSPRINTER_HPP
#define IMAGEPOSITION_TESTS_HOST_DRIVERLESSPRINTER_HPP

#include "PrivateCups.hpp"
#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <string>

namespace imageposition::test {

/// CUPS's own ippeveprinter, in colour and two-sided, on a free port of this machine. Ended with
/// this object.
class DriverlessPrinter {
public:
  DriverlessPrinter();

  /// Whether it answered in time.
  bool isReady() const noexcept { return isReady_; }

  /// Makes a queue for it, of the description that CUPS writes from what the printer says of
  /// itself. False when CUPS has none in time.
  bool addQueue(const PrivateCups &cups, const std::string &name) const;

  /// What it wrote about itself.
  std::string log() { return process_.errorsSoFar(); }

private:
  TemporaryFolder folder_;
  const int port_;
  Process process_; // ends before the folder goes
  bool isReady_ = false;
};

} // namespace imageposition::test

#endif
