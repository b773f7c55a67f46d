/// A desktop session with the real portal, which uses print-dialog-portal.
#ifndef IMAGEPOSITION_TESTS_HOST_PORTAL_PORTALSESSION_HPP
#define IMAGEPOSITION_TESTS_HOST_PORTAL_PORTALSESSION_HPP

#include "PlatformDefaults.hpp"
#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace imageposition::test {

class PortalSession {
public:
  /// Starts the session's bus, which starts the services on demand, with this environment.
  explicit PortalSession(const std::vector<std::string> &environment);

  /// Whether the bus is there.
  bool isRunning() const;
  /// For applications in the session.
  const std::vector<std::string> &environment() const noexcept { return environment_; }
  /// Runs the Python application with these steps; see fixture/portal-client.py.
  std::unique_ptr<Process> application(const std::vector<std::string> &steps) const;

  /// The processes of the dialogs that the service has started, without those that have no window.
  std::vector<pid_t> dialogs() const;
  /// The service; 0 if it does not run.
  pid_t service() const;
  /// The only dialog, as soon as there is one; 0 if none appears.
  pid_t dialog() const;
  /// Where that dialog describes its window.
  std::string screenFile() const { return folder_.path("screen"); }
  /// Forgets the last window, before another opens.
  void forgetScreen() const;
  /// The number of files with prepared jobs.
  std::size_t preparedJobs() const;
  /// Of the bus and its services.
  std::string log() { return bus_->errorsSoFar(); }

private:
  void writeFiles() const;

  TemporaryFolder folder_;
  std::unique_ptr<PlatformDefaults> observer_;
  std::vector<std::string> environment_;
  std::unique_ptr<Process> bus_; // destroyed before the folder
};

} // namespace imageposition::test

#endif
