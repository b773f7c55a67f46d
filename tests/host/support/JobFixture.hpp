/// Jobs that a CUPS of the tests' own prints, on printers that write down what they are given.
#ifndef IMAGEPOSITION_TESTS_HOST_JOBFIXTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_JOBFIXTURE_HPP

#include "JobSubmission.hpp"
#include "PrivateCups.hpp"

#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace imageposition::test {

/// What a printer's filter was given.
struct PrintedJob {
  std::vector<std::string> arguments;         ///< Job, user, title, copies, options: argv[1] on.
  std::string optionText;                     ///< argv[5], as it was.
  std::map<std::string, std::string> options; ///< As CUPS parses them.
  std::map<std::string, std::string> environment;
  std::size_t bytes = 0; ///< Of the document.
};

/// Polls with a deadline; false when it never held.
bool comesTrue(const std::function<bool()> &condition);

/// Each test has the queue "office". This process talks to the tests' CUPS alone.
class JobFixture : public testing::Test {
protected:
  static void SetUpTestSuite();
  void SetUp() override;
  void TearDown() override;

  static PrivateCups &cups();
  /// Runs one of CUPS's commands; a failure of it fails the test.
  static std::string command(const std::vector<std::string> &words);
  /// A printer as one of the samples describes it.
  static void addQueue(const std::string &name, const std::string &sample = "duplex-shift.ppd");

  static JobRequest requestFor(const std::string &queue = "office");
  /// A document that CUPS takes for PDF.
  std::string document(std::size_t size = 1000) const;
  /// Waits until it has been printed; fails the test when it is not.
  static PrintedJob printed(int job, int document = 1);
  /// Of all jobs that ever were in this test and are not finished.
  static std::string waitingJobs() { return command({"lpstat", "-o"}); }
  static bool hasPrinted(int job, int document = 1);
  /// Documents of this test that have reached the filter.
  static int printedCount();
  /// Submits and expects a refusal.
  static SubmissionFailure refusal(const JobRequest &request, const std::string &path,
                                   const ProgressCallback &progress = {});

  TemporaryFolder folder;
};

} // namespace imageposition::test

#endif
