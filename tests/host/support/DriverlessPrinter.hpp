/// A driverless printer on the network.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_DRIVERLESSPRINTER_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_DRIVERLESSPRINTER_HPP

#include "PrivateCups.hpp"
#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <string>

namespace imageposition::test {

/// Runs CUPS's ippeveprinter as a two-sided colour printer on a free port of this machine. The
/// destructor stops it.
class DriverlessPrinter {
public:
  DriverlessPrinter();

  /// Whether it responded in time.
  bool isReady() const noexcept { return isReady_; }

  /// Adds a queue for it with the description that CUPS generates from the printer's attributes.
  /// Returns false if CUPS does not generate it in time.
  bool addQueue(const PrivateCups &cups, const std::string &name) const;

  /// The PDF document of the job with that number, counted from 1; waits for it. Empty if there is
  /// none.
  std::string documentOf(int job) const;

  /// Its log.
  std::string log() { return process_.errorsSoFar(); }

private:
  TemporaryFolder folder_, jobs_;
  const int port_;
  Process process_; // destroyed before the folder
  bool isReady_ = false;
};

} // namespace imageposition::test

#endif
