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
  KeptJobs() : cups_("", {}, "ServerBin " + programs() + "\n") {}

  PrivateCups &cups() noexcept { return cups_; }

  /// Adds a queue with this description; `words` are further arguments of lpadmin.
  ProcessResult addQueue(const std::string &name, const std::string &ppd,
                         const std::vector<std::string> &words = {}) {
    std::vector<std::string> all{"lpadmin", "-p",
                                 name,      "-E",
                                 "-v",      "keep:" + kept_.path(),
                                 "-P",      folder_.write(name + ".ppd", ppd)};
    all.insert(all.end(), words.begin(), words.end());
    return cups_.run(all);
  }

  /// What the printer got of the job that lp or print-dialog has reported; waits for it. Several
  /// documents follow each other. Empty if the job has failed.
  std::string contentOf(const ProcessResult &reported) const {
    return contentOfJob(numberIn(reported.output));
  }

  /// The same for the job with that number.
  std::string contentOfJob(int number) const {
    const std::string path = kept_.path("job-" + std::to_string(number));
    const bool isThere = becomesTrue([&] { return std::filesystem::exists(path); });
    return isThere ? test::contentOf(path) : "";
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
  /// CUPS's programs, and a backend.
  std::string programs() {
    for (const char *const part : {"daemon", "driver", "filter", "monitor", "notifier"})
      std::filesystem::create_symlink(std::string("/usr/lib/cups/") + part, folder_.path(part));
    const std::string backend = folder_.write("backend/keep", "#!/bin/sh\n"
                                                              "[ $# = 0 ] && exit 0\n"
                                                              "kept=${DEVICE_URI#keep:}/job-$1\n"
                                                              "cat $6 > $kept.part\n"
                                                              "mv $kept.part $kept\n");
    chmod(backend.c_str(), 0755);
    chmod(folder_.path().c_str(), 0755);
    chmod(kept_.path().c_str(), 0777); // backends run as another user
    return folder_.path();
  }

  TemporaryFolder folder_, kept_;
  PrivateCups cups_; // last: uses the folders
};

} // namespace imageposition::test

#endif
