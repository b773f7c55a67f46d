/// A private CUPS server whose printers keep what they are sent.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_KEPTJOBS_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_KEPTJOBS_HPP

#include "PrivateCups.hpp"
#include "TemporaryFolder.hpp"
#include "Waiting.hpp"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace imageposition::test {

class KeptJobs {
public:
  /// `policies` are further lines of its cupsd.conf.
  explicit KeptJobs(const std::string &policies = "")
      : cups_(policies, {}, "ServerBin " + programs() + "\n") {}

  PrivateCups &cups() noexcept { return cups_; }

  /// Adds a queue with this description; `words` are further arguments of lpadmin, such as -v for
  /// another printer.
  ProcessResult addQueue(const std::string &name, const std::string &ppd,
                         const std::vector<std::string> &words = {}) {
    std::vector<std::string> all{"lpadmin", "-p",  name, "-E",
                                 "-v",      uri(), "-P", folder_.write(name + ".ppd", ppd)};
    all.insert(all.end(), words.begin(), words.end());
    return cups_.run(all);
  }

  /// The device of printers that keep what they are sent.
  std::string uri() const { return "keep:" + kept_.path(); }

  /// What the printer got of the job that lp or print-dialog has reported; waits for it. Several
  /// documents follow each other. Empty if the job has failed.
  std::string contentOf(const ProcessResult &reported) const {
    return contentOf(numberIn(reported.output));
  }
  /// The same of the job with that number.
  std::string contentOf(int job) const {
    const std::string path = kept_.path("job-" + std::to_string(job));
    const bool isThere = becomesTrue([&] { return std::filesystem::exists(path); });
    return isThere ? test::contentOf(path) : "";
  }
  /// The options of a job of which the printer has got the content, as filters get them.
  std::string optionsOf(int job) const {
    return test::contentOf(kept_.path("options-" + std::to_string(job)));
  }

  /// The number at the end of "request id is office-12 (1 file(s))"; 0 if there is none.
  static int numberIn(const std::string &output) {
    const std::size_t end = output.find(" (");
    const std::size_t dash = output.rfind('-', end);
    return end == std::string::npos || dash == std::string::npos
               ? 0
               : std::atoi(output.c_str() + dash + 1);
  }

private:
  /// CUPS's programs, a backend that keeps jobs, and the one that forwards to other servers.
  std::string programs() {
    for (const char *const part : {"daemon", "driver", "filter", "monitor", "notifier"})
      std::filesystem::create_symlink(std::string("/usr/lib/cups/") + part, folder_.path(part));
    const std::string backend = folder_.write("backend/keep", "#!/bin/sh\n"
                                                              "[ $# = 0 ] && exit 0\n"
                                                              "cd ${DEVICE_URI#keep:}\n"
                                                              "echo \"$5\" > options-$1\n"
                                                              "cat $6 > part-$1\n"
                                                              "mv part-$1 job-$1\n");
    chmod(backend.c_str(), 0755);
    std::filesystem::create_symlink("/usr/lib/cups/backend/ipp", folder_.path("backend/ipp"));
    chmod(folder_.path().c_str(), 0755);
    chmod(kept_.path().c_str(), 0777); // backends run as another user
    return folder_.path();
  }

  TemporaryFolder folder_, kept_;
  PrivateCups cups_; // last: uses the folders
};

} // namespace imageposition::test

#endif
