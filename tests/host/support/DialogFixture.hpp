/// Runs print-dialog on the sample printers.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_DIALOGFIXTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_DIALOGFIXTURE_HPP

#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace imageposition::test {

/// The exit statuses of print-dialog; see its help.
enum Status {
  kDone = 0,
  kCancelled = 1,
  kUsage = 2,
  kPrinter = 3,
  kPlugin = 4,
  kNoPanel = 5,
  kTicket = 6,
  kDisplay = 7,
  kValue = 8,
  kJob = 9
};

class DialogFixture : public testing::Test {
protected:
  using Words = std::vector<std::string>;

  static std::string sample(const std::string &name) { return IMAGEPOSITION_SAMPLES "/" + name; }

  ProcessResult dialog(const Words &words, const Words &environment = {}) const {
    Words all{PRINT_DIALOG};
    all.insert(all.end(), words.begin(), words.end());
    return runProcess(all, environment);
  }

  ProcessResult batch(const std::string &ppd, const Words &words,
                      const Words &environment = {}) const {
    Words all{"--batch", "--ppd", ppd};
    all.insert(all.end(), words.begin(), words.end());
    return dialog(all, environment);
  }

  /// The "name=value" lines at the start of the output.
  static std::map<std::string, std::string> settingsIn(const std::string &output) {
    std::map<std::string, std::string> settings;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
      const std::size_t equals = line.find('=');
      if (equals == std::string::npos || line[0] == ' ')
        break;
      settings[line.substr(0, equals)] = line.substr(equals + 1);
    }
    return settings;
  }

  static std::map<std::string, std::string> offsets(const char *front, const char *frontTop,
                                                    const char *back, const char *backTop,
                                                    const char *enable) {
    return {{"LeftRightMargin", front},
            {"TopBottomMargin", frontTop},
            {"BackLeftRightMargin", back},
            {"BackTopBottomMargin", backTop},
            {"com.morva.printsettings.19AImagePositionEnable", enable}};
  }

  TemporaryFolder folder;
};

} // namespace imageposition::test

#endif
