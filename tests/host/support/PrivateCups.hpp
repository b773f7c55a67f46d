/// A private CUPS server for tests.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_PRIVATECUPS_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_PRIVATECUPS_HPP

#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <memory>
#include <string>
#include <vector>

namespace imageposition::test {

/// Listens on a socket in a temporary folder, which holds all its other files as well. The
/// destructor stops it.
class PrivateCups {
public:
  /// `policies` are further lines of its cupsd.conf, `files` of its cups-files.conf; `environment`
  /// modifies this process's environment for it.
  explicit PrivateCups(const std::string &policies = "", std::vector<std::string> environment = {},
                       const std::string &files = "");

  /// Whether it responded in time.
  bool isRunning() const noexcept { return isRunning_; }
  /// Kills it, as a crash would.
  void stop();
  /// Restarts it with its files on disk, and waits for it.
  void start();
  /// Suspends and resumes it.
  void send(int signal) const {
    if (server_)
      server_->send(signal);
  }
  /// The value for CUPS_SERVER.
  std::string socket() const { return folder_.path("socket"); }
  /// The value for CUPS_SERVERROOT.
  std::string root() const { return folder_.path(); }
  /// The home folder of a user without CUPS settings.
  std::string home() const { return folder_.path("home"); }
  /// Variables with which a program uses this server. It remembers nothing of programs that were
  /// started with another call's.
  std::vector<std::string> environment() const {
    return {"CUPS_SERVER=" + socket(), "CUPS_SERVERROOT=" + folder_.path(), "HOME=" + home(),
            "XDG_STATE_HOME=" + folder_.path("state-" + std::to_string(++states_))};
  }
  /// Runs a CUPS command against it.
  ProcessResult run(const std::vector<std::string> &words) const;
  /// Adds a queue with the description that CUPS generates from the attributes of the printer at
  /// that address. Jobs are done when they are sent. Returns false if CUPS does not generate the
  /// description in time.
  bool addDriverlessQueue(const std::string &name, const std::string &uri) const;
  /// An attribute of a job as a string; empty if there is none.
  std::string jobAttribute(int job, const char *name) const;
  /// Its log.
  std::string log() const;

private:
  void writeConfiguration(const std::string &policies, const std::string &files) const;

  TemporaryFolder folder_;
  const std::vector<std::string> environment_;
  std::unique_ptr<Process> server_; // destroyed before the folder
  bool isRunning_ = false;
  mutable int states_ = 0;
};

} // namespace imageposition::test

#endif
