/// Prints jobs on a private CUPS server whose filter records its input.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_JOBFIXTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_JOBFIXTURE_HPP

#include "JobSubmission.hpp"
#include "PrivateCups.hpp"

#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace imageposition::test {

/// The input of a printer's filter.
struct PrintedJob {
  std::vector<std::string> arguments;         ///< Job, user, title, copies, options: argv[1] on.
  std::string optionText;                     ///< argv[5], unparsed.
  std::map<std::string, std::string> options; ///< As CUPS parses them.
  std::map<std::string, std::string> environment;
  std::size_t bytes = 0; ///< Of the document.
};

/// Polls with a deadline; false if the condition never held.
bool comesTrue(const std::function<bool()> &condition);

/// Each test has the queue "office". This process uses only the private CUPS server.
class JobFixture : public testing::Test {
protected:
  static void SetUpTestSuite();
  void SetUp() override;
  void TearDown() override;

  static PrivateCups &cups();
  /// Runs a CUPS command; fails the test if the command fails.
  static std::string command(const std::vector<std::string> &words);
  /// Adds a queue with the description of a sample.
  static void addQueue(const std::string &name, const std::string &sample = "duplex-shift.ppd");

  static JobRequest requestFor(const std::string &queue = "office");
  /// A document that CUPS recognizes as PDF.
  std::string document(std::size_t size = 1000) const;
  /// Waits until the job has been printed; fails the test if that does not happen.
  static PrintedJob printed(int job, int document = 1);
  /// The unfinished jobs of this test.
  static std::string waitingJobs() { return command({"lpstat", "-o"}); }
  static bool hasPrinted(int job, int document = 1);
  /// The number of documents of this test that reached the filter.
  static int printedCount();
  /// Submits the job and expects a refusal.
  static SubmissionFailure refusal(const JobRequest &request, const std::string &path,
                                   const ProgressCallback &progress = {});

  TemporaryFolder folder;
};

} // namespace imageposition::test

#endif
