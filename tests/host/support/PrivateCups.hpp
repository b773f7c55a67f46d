/// A CUPS of the test's own.
#ifndef IMAGEPOSITION_TESTS_HOST_PRIVATECUPS_HPP
#define IMAGEPOSITION_TESTS_HOST_PRIVATECUPS_HPP

#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <memory>
#include <string>
#include <vector>

namespace imageposition::test {

/// Listens on a socket in a temporary folder, in which everything else of it stands too. Ended with
/// this object.
class PrivateCups {
public:
  /// `policies` are further lines of its cupsd.conf; `environment` is laid over this process's for
  /// it.
  explicit PrivateCups(const std::string &policies = "", std::vector<std::string> environment = {});

  /// Whether it answered in time.
  bool isRunning() const noexcept { return isRunning_; }
  /// Ends it at once, as a crash would.
  void stop();
  /// Starts it again with all that it had on disk, and waits for it.
  void start();
  /// Lets it stand still, and go on.
  void send(int signal) const {
    if (server_)
      server_->send(signal);
  }
  /// As CUPS_SERVER names it.
  std::string socket() const { return folder_.path("socket"); }
  /// As CUPS_SERVERROOT names it.
  std::string root() const { return folder_.path(); }
  /// Of a person who has nothing of CUPS's yet.
  std::string home() const { return folder_.path("home"); }
  /// To lay over a program's environment, so that it talks to this CUPS.
  std::vector<std::string> environment() const {
    return {"CUPS_SERVER=" + socket(), "CUPS_SERVERROOT=" + folder_.path(), "HOME=" + home()};
  }
  /// Runs one of CUPS's commands against it.
  ProcessResult run(const std::vector<std::string> &words) const;
  /// What it knows of a job, as text; empty for nothing.
  std::string jobAttribute(int job, const char *name) const;
  /// What it wrote about itself.
  std::string log() const;

private:
  void writeConfiguration(const std::string &policies) const;

  TemporaryFolder folder_;
  const std::vector<std::string> environment_;
  std::unique_ptr<Process> server_; // ends before the folder goes
  bool isRunning_ = false;
};

} // namespace imageposition::test

#endif
