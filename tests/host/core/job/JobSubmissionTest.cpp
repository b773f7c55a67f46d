#include "JobSubmission.hpp"

#include "Destinations.hpp"
#include "JobFixture.hpp"
#include "ProcessLimits.hpp"
#include "RecordingRelay.hpp"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace imageposition;
using namespace imageposition::test;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;
using testing::Not;
using testing::Pair;

constexpr char kFlag[] = "com.morva.printsettings.19AImagePositionEnable";
constexpr const char *kOffsets[] = {"LeftRightMargin", "TopBottomMargin", "BackLeftRightMargin",
                                    "BackTopBottomMargin"};

class Job : public JobFixture {};

/// The limits, both signs and zero.
constexpr int kValues[] = {-100, -3, 0, 7, 100};
constexpr int kValueCount = 5;

/// Covers all pairs of values of any two offsets, for each state of the checkbox: 50 rows instead
/// of 1250.
std::vector<std::map<std::string, std::string>> settingsTable() {
  std::vector<std::map<std::string, std::string>> rows;
  for (const char *flag : {"True", "False"})
    for (int a = 0; a < kValueCount; a++)
      for (int b = 0; b < kValueCount; b++) {
        const int picks[] = {a, b, (a + b) % kValueCount, (a + 2 * b) % kValueCount};
        std::map<std::string, std::string> row{{kFlag, flag}};
        for (int i = 0; i < 4; i++)
          row[kOffsets[i]] = std::to_string(kValues[picks[i]]);
        rows.push_back(row);
      }
  return rows;
}

TEST_F(Job, PassesEverySettingOfThePanelToTheFilter) {
  const auto rows = settingsTable();
  std::vector<int> jobs;
  for (const auto &row : rows) {
    JobRequest request = requestFor();
    for (const auto &[name, value] : row)
      request.settings.set(name, value);
    jobs.push_back(submitJob(request, {document()}).id);
  }
  for (std::size_t i = 0; i < rows.size(); i++) {
    const PrintedJob job = printed(jobs[i]);
    for (const char *name : kOffsets)
      EXPECT_THAT(job.options, Contains(Pair(name, rows[i].at(name)))) << job.optionText;
    const std::string bare = (rows[i].at(kFlag) == "True" ? "" : "no") + std::string(kFlag);
    EXPECT_THAT(" " + job.optionText + " ", HasSubstr(" " + bare + " "));
  }
}

TEST_F(Job, PassesCopiesPagesAndLayoutToTheFilter) {
  JobRequest request = requestFor();
  request.title = "Jahresbericht \xC3\xBC"
                  "ber \"alles\"";
  for (const auto &[name, value] : std::map<std::string, std::string>{
           {"copies", "3"},
           {"Collate", "True"},
           {"multiple-document-handling", "separate-documents-collated-copies"},
           {"page-ranges", "7, 1-3"},
           {"page-set", "odd"},
           {"job-priority", "70"},
           {"number-up", "2"},
           {"Duplex", "DuplexTumble"}})
    request.settings.set(name, value);
  const PrintedJob job = printed(submitJob(request, {document(5000)}).id);
  EXPECT_EQ(job.bytes, 5000u);
  EXPECT_EQ(job.arguments.at(2), request.title);
  EXPECT_EQ(job.arguments.at(3), "3");
  for (const auto &[name, value] : std::map<std::string, std::string>{
           {"Collate", "true"},
           {"multiple-document-handling", "separate-documents-collated-copies"},
           {"page-ranges", "1-3,7"},
           {"page-set", "odd"},
           {"number-up", "2"},
           {"Duplex", "DuplexTumble"}})
    EXPECT_THAT(job.options, Contains(Pair(name, value))) << job.optionText;
  EXPECT_THAT(job.environment, Contains(Pair("PRINTER", "office")));
}

TEST_F(Job, PassesValuesThatNeedQuotingToTheFilter) {
  JobRequest request = requestFor();
  for (const char *value : {"two words", "a,b", "say \"hi\"", "back\\slash", "it's"}) {
    request.settings.set("Account", value);
    const PrintedJob job = printed(submitJob(request, {document()}).id);
    EXPECT_THAT(job.options, Contains(Pair("Account", value))) << job.optionText;
  }
}

const char *groupName(ipp_tag_t group) {
  return group == IPP_TAG_OPERATION ? "operation" : group == IPP_TAG_JOB ? "job" : "subscription";
}

std::string linesOf(ipp_t *request) {
  std::string lines;
  for (auto *attribute = ippFirstAttribute(request); attribute != nullptr;
       attribute = ippNextAttribute(request)) {
    char value[4096];
    if (ippGetName(attribute) == nullptr)
      continue;
    ippAttributeString(attribute, value, sizeof value);
    lines += std::string(groupName(ippGetGroupTag(attribute))) + " " + ippGetName(attribute) +
             " (" + ippTagString(ippGetValueTag(attribute)) + ") = " + value + "\n";
  }
  return lines;
}

std::string withoutNotes(const std::string &text) {
  std::istringstream lines(text);
  std::string rest;
  for (std::string line; std::getline(lines, line);)
    if (line.compare(0, 4, "    ") != 0)
      rest += line + "\n";
  return rest;
}

TEST_F(Job, IsCreatedByExactlyTheRequestThatADryRunShows) {
  JobRequest request = requestFor();
  request.printerUri = readDestinations().find("office")->uri;
  for (const auto &[name, value] : std::map<std::string, std::string>{
           {"copies", "2"},
           {"Collate", "False"},
           {"multiple-document-handling", "separate-documents-uncollated-copies"},
           {"page-ranges", "1-3, 7, 9-"},
           {"job-priority", "70"},
           {"job-hold-until", "indefinite"}})
    request.settings.set(name, value);
  request.defaults.set("job-sheets", "none,standard");
  const auto rows = settingsTable();
  for (const auto &[name, value] : rows.front())
    request.settings.set(name, value);
  request.settings.set("Account", "a,b \"c\"");
  request.settings.set("media-col", "{media-type=plain}");
  const std::string path = folder.path("relay");
  ipp_t *sent = nullptr;
  {
    RecordingRelay relay(path, cups().socket());
    cupsSetServer(path.c_str());
    submitJob(request, {document()});
    cupsSetServer(cups().socket().c_str());
    sent = relay.request(IPP_OP_CREATE_JOB);
  }
  ASSERT_NE(sent, nullptr);
  EXPECT_EQ(withoutNotes(writeRequestText(request)), linesOf(sent));
  ippDelete(sent);
}

TEST_F(Job, IsKeptForAStoppedPrinterUntilItIsResumed) {
  command({"cupsdisable", "office"});
  const SubmittedJob job = submitJob(requestFor(), {document()});
  EXPECT_THAT(job.note, AllOf(HasSubstr("keeps the job"), HasSubstr("cupsenable office")));
  EXPECT_THAT(waitingJobs(), HasSubstr("office-" + std::to_string(job.id)));
  EXPECT_FALSE(hasPrinted(job.id));
  command({"cupsenable", "office"});
  EXPECT_EQ(printed(job.id).bytes, 1000u);
}

TEST_F(Job, HasNoNoteIfItPrintsAtOnce) {
  EXPECT_EQ(submitJob(requestFor(), {document()}).note, "");
}

TEST_F(Job, WaitsForItsReleaseIfHeld) {
  JobRequest request = requestFor();
  request.settings.set("job-hold-until", "indefinite");
  const SubmittedJob job = submitJob(request, {document()});
  const std::string name = "office-" + std::to_string(job.id);
  EXPECT_THAT(job.note, HasSubstr("lp -i " + name + " -H resume"));
  EXPECT_THAT(waitingJobs(), HasSubstr(name));
  EXPECT_FALSE(hasPrinted(job.id));
  command({"lp", "-i", name, "-H", "resume"});
  EXPECT_EQ(printed(job.id).bytes, 1000u);
}

TEST_F(Job, IsRefusedForADeletedQueue) {
  command({"lpadmin", "-x", "office"});
  const SubmissionFailure failure = refusal(requestFor(), document());
  EXPECT_EQ(failure.problem(), JobProblem::QueueGone) << failure.what();
  EXPECT_EQ(failure.code(), ExitCode::Job);
  EXPECT_THAT(failure.what(), HasSubstr("no longer has a printer \"office\""));
}

TEST_F(Job, IsRefusedWithoutCups) {
  cups().stop();
  const SubmissionFailure failure = refusal(requestFor(), document());
  EXPECT_EQ(failure.problem(), JobProblem::NoCups) << failure.what();
  EXPECT_THAT(failure.what(), HasSubstr("systemctl start cups"));
}

TEST_F(Job, FailsAndNeverPrintsIfCupsStopsDuringSending) {
  bool isStopped = false;
  const SubmissionFailure failure =
      refusal(requestFor(), document(8 << 20), [&](const JobProgress &progress) {
        if (progress.sent > 1 << 20 && !isStopped)
          cups().stop();
        isStopped = isStopped || progress.sent > 1 << 20;
        return true;
      });
  EXPECT_EQ(failure.problem(), JobProblem::NoCups) << failure.what();
  EXPECT_THAT(failure.what(), HasSubstr("stopped before it had"));
  cups().start();
  const SubmittedJob next = submitJob(requestFor(), {document()});
  printed(next.id); // the printer prints jobs in order
  EXPECT_EQ(printedCount(), 1);
}

TEST_F(Job, IsRefusedByAPrinterThatDoesNotAcceptJobs) {
  command({"cupsreject", "office"});
  const SubmissionFailure failure = refusal(requestFor(), document());
  EXPECT_EQ(failure.problem(), JobProblem::RefusesJobs) << failure.what();
  EXPECT_THAT(failure.what(), HasSubstr("cupsaccept office"));
}

TEST_F(Job, IsRefusedForAUserWithoutPermission) {
  command({"lpadmin", "-p", "office", "-u", std::string("deny:") + cupsUser()});
  const SubmissionFailure failure = refusal(requestFor(), document());
  EXPECT_EQ(failure.problem(), JobProblem::Authentication) << failure.what();
  EXPECT_THAT(failure.what(), HasSubstr("You are not allowed to print"));
}

TEST_F(Job, IsRefusedBeyondTheQuota) {
  command({"lpadmin", "-p", "office", "-o", "job-k-limit=1", "-o", "job-quota-period=3600"});
  submitJob(requestFor(), {document(5000)});
  const SubmissionFailure failure = refusal(requestFor(), document());
  EXPECT_EQ(failure.problem(), JobProblem::Spool) << failure.what();
  EXPECT_THAT(failure.what(), HasSubstr("Wait until"));
}

TEST_F(Job, IsRefusedAndRemovedIfItIsTooLargeForCups) {
  const SubmissionFailure failure = refusal(requestFor(), document(203u << 20));
  EXPECT_EQ(failure.problem(), JobProblem::Spool) << failure.what();
  EXPECT_THAT(failure.what(), HasSubstr("too large"));
  EXPECT_THAT(waitingJobs(), IsEmpty());
}

TEST_F(Job, IsRefusedWithoutTheRequiredPassword) {
  command({"lpadmin", "-p", "office", "-o", "printer-op-policy=asking"});
  const SubmissionFailure failure = refusal(requestFor(), document());
  EXPECT_EQ(failure.problem(), JobProblem::Authentication) << failure.what();
}

TEST_F(Job, IsRefusedForAValueThatCupsDoesNotAccept) {
  JobRequest request = requestFor();
  request.settings.set("copies", "0");
  const SubmissionFailure failure = refusal(request, document());
  EXPECT_EQ(failure.problem(), JobProblem::BadOption) << failure.what();
  EXPECT_THAT(failure.what(), AllOf(HasSubstr("copies"), HasSubstr("Change it")));
}

TEST_F(Job, IsRefusedAndRemovedForAnUnknownFileType) {
  JobRequest request = requestFor();
  request.settings.set("document-format", "application/x-nothing");
  const SubmissionFailure failure = refusal(request, document());
  EXPECT_EQ(failure.problem(), JobProblem::Format) << failure.what();
  EXPECT_THAT(failure.what(), HasSubstr("PDF"));
  EXPECT_THAT(waitingJobs(), IsEmpty());
}

TEST_F(Job, IsRefusedBeforeContactingCupsIfItsDocumentCannotBeRead) {
  cups().stop();
  const struct {
    std::string path;
    const char *reason;
  } kRows[] = {{folder.path("missing.pdf"), "No such file"},
               {folder.path(), "Is a directory"},
               {folder.write("empty.pdf", ""), "is empty"}};
  for (const auto &row : kRows) {
    const SubmissionFailure failure = refusal(requestFor(), row.path);
    EXPECT_EQ(failure.problem(), JobProblem::Document) << failure.what();
    EXPECT_EQ(failure.code(), ExitCode::Usage);
    EXPECT_THAT(failure.what(), AllOf(HasSubstr(row.path), HasSubstr(row.reason)));
  }
}

long peakMemoryInKilobytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

TEST_F(Job, StreamsTwoHundredMegabytes) {
  constexpr std::size_t kSize = 200u << 20;
  command({"cupsdisable", "office"}); // exclude the filter's time
  const std::string path = document(kSize);
  submitJob(requestFor(), {document(1000)}); // loads everything that is loaded only once
  document(kSize);
  const long before = peakMemoryInKilobytes();
  std::uint64_t sent = 0;
  const SubmittedJob job = submitJob(requestFor(), {path}, [&](const JobProgress &progress) {
    EXPECT_EQ(progress.total, std::optional<std::uint64_t>(kSize));
    EXPECT_GE(progress.sent, sent);
    sent = progress.sent;
    return true;
  });
  EXPECT_EQ(sent, kSize);
  EXPECT_LT(peakMemoryInKilobytes() - before, 4096);
  EXPECT_THAT(waitingJobs(), HasSubstr("office-" + std::to_string(job.id)));
}

TEST_F(Job, NeverPrintsIfCancelledDuringSending) {
  const SubmissionFailure failure =
      refusal(requestFor(), document(8 << 20),
              [](const JobProgress &progress) { return progress.sent < 4 << 20; });
  EXPECT_EQ(failure.problem(), JobProblem::Cancelled) << failure.what();
  EXPECT_EQ(failure.code(), ExitCode::Cancelled);
  EXPECT_THAT(waitingJobs(), IsEmpty());
  const SubmittedJob next = submitJob(requestFor(), {document()});
  printed(next.id);
  EXPECT_EQ(printedCount(), 1);
}

TEST_F(Job, FailsAndNeverPrintsIfItsDocumentShrinksDuringSending) {
  const std::string path = document(8 << 20);
  const SubmissionFailure failure = refusal(requestFor(), path, [&](const JobProgress &progress) {
    if (progress.sent > 1 << 20)
      std::filesystem::resize_file(path, 2 << 20);
    return true;
  });
  EXPECT_EQ(failure.problem(), JobProblem::Document) << failure.what();
  EXPECT_EQ(failure.code(), ExitCode::Usage);
  EXPECT_THAT(failure.what(), AllOf(HasSubstr(path), HasSubstr("shorter")));
  EXPECT_THAT(waitingJobs(), IsEmpty());
  const SubmittedJob next = submitJob(requestFor(), {document()});
  printed(next.id);
  EXPECT_EQ(printedCount(), 1);
}

TEST_F(Job, PrintsAllOfADocumentThatGrowsDuringSending) {
  const std::string path = document(4 << 20);
  const SubmittedJob job = submitJob(requestFor(), {path}, [&](const JobProgress &progress) {
    if (progress.sent > 1 << 20)
      std::filesystem::resize_file(path, 5 << 20);
    return true;
  });
  EXPECT_EQ(printed(job.id).bytes, 5u << 20);
}

TEST_F(Job, IsNotCreatedIfCancelledBeforeTheFirstByte) {
  const int before = submitJob(requestFor(), {document()}).id;
  refusal(requestFor(), document(), [](const JobProgress &) { return false; });
  EXPECT_EQ(submitJob(requestFor(), {document()}).id, before + 1);
}

TEST_F(Job, CanBeCancelledWhileCupsHangs) {
  cups().send(SIGSTOP);
  JobSubmission submission(requestFor(), {document()});
  EXPECT_FALSE(submission.isDone());
  submission.cancel();
  ASSERT_TRUE(comesTrue([&] { return submission.isDone(); }));
  cups().send(SIGCONT);
  try {
    submission.result();
    ADD_FAILURE();
  } catch (const SubmissionFailure &failure) {
    EXPECT_EQ(failure.problem(), JobProblem::Cancelled) << failure.what();
  }
}

TEST_F(Job, ReportsItsProgressAndResultOnABackgroundThread) {
  JobSubmission submission(requestFor(), {document(1 << 20)});
  const SubmittedJob job = submission.result();
  EXPECT_TRUE(submission.isDone());
  EXPECT_EQ(submission.progress().sent, 1u << 20);
  EXPECT_EQ(submission.progress().total, std::optional<std::uint64_t>(1 << 20));
  EXPECT_EQ(printed(job.id).bytes, 1u << 20);
  EXPECT_EQ(submission.result().id, job.id);
}

/// Redirects standard input to a pipe that the test writes to.
class StandardInput {
public:
  StandardInput() : before_(dup(STDIN_FILENO)) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
      throw std::runtime_error("no pipe");
    dup2(ends[0], STDIN_FILENO);
    close(ends[0]);
    writer_ = ends[1];
  }
  ~StandardInput() {
    finish();
    dup2(before_, STDIN_FILENO);
    close(before_);
  }
  void write(const std::string &text) const {
    EXPECT_EQ(::write(writer_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  void finish() {
    if (writer_ >= 0)
      close(writer_);
    writer_ = -1;
  }

private:
  int before_;
  int writer_;
};

TEST_F(Job, ReadsStandardInputToItsEnd) {
  StandardInput input;
  JobSubmission submission(requestFor(), {"-"});
  input.write("%PDF-1.4\n");
  input.write(std::string(5000, 'x'));
  input.finish();
  EXPECT_EQ(printed(submission.result().id).bytes, 5009u);
  EXPECT_EQ(submission.progress().total, std::nullopt);
}

TEST_F(Job, CanBeCancelledWhileWaitingForStandardInput) {
  StandardInput input;
  JobSubmission submission(requestFor(), {"-"});
  submission.cancel();
  EXPECT_TRUE(comesTrue([&] { return submission.isDone(); }));
  EXPECT_THROW(submission.result(), SubmissionFailure);
}

TEST_F(Job, PrintsSeveralDocumentsInOrder) {
  StandardInput input;
  input.write("%PDF-1.4\n");
  input.finish();
  JobRequest request = requestFor();
  request.settings.set("LeftRightMargin", "-3");
  const std::string first = document(1000);
  const std::string last = folder.path("last.pdf");
  std::filesystem::copy_file(document(2000), last);
  std::filesystem::resize_file(first, 1000);
  const int job = submitJob(request, {first, "-", last}).id;
  const std::size_t sizes[] = {1000, 9, 2000};
  for (int i = 0; i < 3; i++) {
    const PrintedJob print = printed(job, i + 1);
    EXPECT_EQ(print.bytes, sizes[i]);
    EXPECT_EQ(print.arguments[2], "letter");
    EXPECT_THAT(print.options, Contains(Pair("LeftRightMargin", "-3")));
  }
  EXPECT_EQ(cups().jobAttribute(job, "number-of-documents"), "3");
  EXPECT_TRUE(comesTrue([=] { return cups().jobAttribute(job, "job-state") == "completed"; }));
}

TEST_F(Job, TellsCupsWhichDocumentIsTheLast) {
  const std::string path = folder.path("relay");
  for (const bool isAlone : {false, true}) {
    ipp_t *sent = nullptr;
    {
      RecordingRelay relay(path, cups().socket());
      cupsSetServer(path.c_str());
      submitJob(requestFor(),
                isAlone ? JobDocuments{document()} : JobDocuments{document(), document()});
      cupsSetServer(cups().socket().c_str());
      sent = relay.request(IPP_OP_SEND_DOCUMENT);
    }
    std::filesystem::remove(path);
    ASSERT_NE(sent, nullptr);
    ipp_attribute_t *const last = ippFindAttribute(sent, "last-document", IPP_TAG_BOOLEAN);
    EXPECT_EQ(ippGetBoolean(last, 0) != 0, isAlone);
    ipp_attribute_t *const name = ippFindAttribute(sent, "document-name", IPP_TAG_NAME);
    EXPECT_STREQ(ippGetString(name, 0, nullptr), "document.pdf");
    ippDelete(sent);
  }
}

TEST_F(Job, ReportsProgressOverAllDocuments) {
  const std::string path = document(1000);
  JobProgress last;
  submitJob(requestFor(), {path, path}, [&](const JobProgress &progress) {
    EXPECT_EQ(progress.total, 2000u);
    EXPECT_GE(progress.sent, last.sent);
    last = progress;
    return true;
  });
  EXPECT_EQ(last.sent, 2000u);
}

TEST_F(Job, IsNotCreatedIfOneOfItsDocumentsIsEmpty) {
  const std::string empty = folder.write("empty.pdf", "");
  const int before = submitJob(requestFor(), {document()}).id;
  try {
    submitJob(requestFor(), {document(), empty});
    ADD_FAILURE();
  } catch (const SubmissionFailure &failure) {
    EXPECT_EQ(failure.problem(), JobProblem::Document);
    EXPECT_THAT(failure.what(), HasSubstr("empty.pdf\" is empty"));
  }
  EXPECT_EQ(submitJob(requestFor(), {document()}).id, before + 1);
}

TEST_F(Job, IsRemovedIfALaterDocumentFails) {
  StandardInput input; // empty
  input.finish();
  try {
    submitJob(requestFor(), {document(), "-"});
    ADD_FAILURE();
  } catch (const SubmissionFailure &failure) {
    EXPECT_EQ(failure.problem(), JobProblem::Document);
  }
  EXPECT_THAT(waitingJobs(), IsEmpty());
}

TEST_F(Job, IsRefusedWithAMessageIfNoThreadCanBeCreated) {
  const JobRequest request = requestFor();
  const JobDocuments documents = {document()};
  const auto isRefused = [&] {
    forbidThreads();
    try {
      JobSubmission(request, documents);
    } catch (const SubmissionFailure &failure) {
      return std::string(failure.what()).find("too few resources to send the job (") !=
             std::string::npos;
    }
    return false;
  };
  EXPECT_EXIT(std::_Exit(isRefused() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST_F(Job, ReachesThePrinterUnfilteredIfRaw) {
  JobRequest request = requestFor();
  request.settings.set("raw", "true");
  const int job = submitJob(request, {document()}).id;
  EXPECT_TRUE(comesTrue([=] { return cups().jobAttribute(job, "job-state") == "completed"; }));
  EXPECT_FALSE(hasPrinted(job)); // no filter saw it
}

} // namespace
