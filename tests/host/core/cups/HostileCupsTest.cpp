// Invalid, malicious and missing responses from CUPS.
#include "AnsweringServer.hpp"
#include "CupsWords.hpp"
#include "Destinations.hpp"
#include "JobSubmission.hpp"
#include "PrinterDescription.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <future>
#include <netinet/in.h>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using namespace imageposition;
using namespace imageposition::test;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

constexpr const char kPrinter[] = R"(
01
47 attributes-charset utf-8
48 attributes-natural-language en
04
42 printer-name office
45 printer-uri-supported ipp://localhost/printers/office
23 printer-type 4
23 printer-state 3
22 printer-is-accepting-jobs true
)";

/// The responses that list and describe one printer.
std::string printer(const std::string &further = "") {
  return std::string("answer 200 4002") + kPrinter + further + "\nanswer 200 000b" + kPrinter +
         "23 operations-supported 2\n23 - 5\n23 - 6\n";
}

class HostileCups : public testing::Test {
protected:
  void SetUp() override {
    if (const char *const before = std::getenv("CUPS_SERVER"))
      before_ = before;
    setenv("CUPS_SERVER", server_.socket().c_str(), 1);
  }
  void TearDown() override {
    if (before_)
      setenv("CUPS_SERVER", before_->c_str(), 1);
    else
      unsetenv("CUPS_SERVER");
  }

  /// Runs `work` on a new thread, which has no connection to another CUPS server.
  template <typename Work> auto with(const std::string &answers, Work work) {
    server_.setAnswers(readAnswers(answers));
    return std::async(std::launch::async, work).get();
  }
  DestinationList printers(const std::string &answers) {
    return with(answers, [] { return readDestinations(); });
  }
  /// Why a job is not sent; empty if it is.
  std::string refusal(const std::string &answers, const ProgressCallback &progress = {}) {
    const std::string document = folder_.write("a.ps", "%!PS\n");
    return with(answers, [=] {
      JobRequest request;
      request.printer = "office";
      request.title = "A document";
      try {
        submitJob(request, {document}, progress);
      } catch (const SubmissionFailure &failure) {
        return std::string(failure.what());
      }
      return std::string();
    });
  }

  /// Cancels once CUPS has received all of the document without confirming it.
  std::string refusalOfCancelled(const std::string &answers) {
    return refusal(answers, [this](const JobProgress &) {
      return server_.requestCount(IPP_OP_SEND_DOCUMENT) == 0;
    });
  }
  std::size_t cancelCount() { return server_.requestCount(IPP_OP_CANCEL_JOB); }

private:
  const TemporaryFolder folder_;
  AnsweringServer server_;
  std::optional<std::string> before_;
};

TEST_F(HostileCups, CannotControlTheTerminalThroughThePropertiesOfAPrinter) {
  const DestinationList list =
      printers(printer("41 printer-info Big \xFF\x1B[31m\n41 printer-location \xC2\x9B"
                       "5n\n44 printer-state-reasons odd\x07\xFE\n"));
  ASSERT_THAT(list.destinations, SizeIs(1));
  EXPECT_EQ(list.destinations[0].description, "Big \uFFFD\\x1b[31m");
  EXPECT_EQ(list.destinations[0].location, "\\x9b5n");
  EXPECT_EQ(list.destinations[0].stateText, "Ready (odd\\x07\uFFFD)");
}

TEST_F(HostileCups, APrinterWhoseNameCannotBeDisplayedIsOmitted) {
  const DestinationList list =
      printers(printer("04\n42 printer-name lab\xFF\x1B[2J\n45 printer-uri-supported "
                       "ipp://localhost/printers/lab\n23 printer-type 4\n"));
  ASSERT_THAT(list.destinations, SizeIs(1));
  EXPECT_EQ(list.destinations[0].name, "office");
}

TEST_F(HostileCups, AnErrorMessageIsOneLineOfUtf8) {
  EXPECT_THAT(
      refusal(printer() + "answer 200 0005\nipp 0500\n01\n41 status-message Broken\x1B[2J \xFF.\n"),
      HasSubstr("(Broken\\x1b[2J \uFFFD)"));
  EXPECT_THAT(with("answer 200 0\nipp 0406\n01\n41 status-message Broken\x1B[2J \xFF.\n",
                   [] {
                     try {
                       PrinterDescription::ofQueue("office");
                     } catch (const Failure &failure) {
                       return std::string(failure.what());
                     }
                     return std::string();
                   }),
              HasSubstr("\"office\": Broken\\x1b[2J \uFFFD."));
}

TEST_F(HostileCups, AResponseWithoutAJobNumberIsAFailureWithoutASuccessMessage) {
  const std::string reason = refusal(printer() + "answer 200 0005\n02\n41 job-id 7\n");
  EXPECT_THAT(reason, HasSubstr("CUPS did not accept the job for \"office\". "));
  EXPECT_THAT(reason, Not(HasSubstr("successful")));
}

/// Accepts a job and all of its document, then never responds.
std::string silence() {
  return printer() + "answer 200 0005\n02\n21 job-id 7\nanswer 200 0006\nsilent\n";
}

TEST_F(HostileCups, CancellingBeforeTheDocumentIsConfirmedCancelsTheJobInCups) {
  EXPECT_THAT(
      refusalOfCancelled(silence() + "answer 200 0008\n"),
      AllOf(HasSubstr("Job office-7 was cancelled"), Not(HasSubstr("Nothing was printed"))));
  EXPECT_EQ(cancelCount(), 1U);
}

TEST_F(HostileCups, AJobThatCannotBeCancelledIsReportedWithTheCommandThatRemovesIt) {
  for (const char *answer : {"ipp 0404\n", "silent\n"}) {
    EXPECT_THAT(refusalOfCancelled(silence() + "answer 200 0008\n" + answer),
                HasSubstr(": cancel office-7"))
        << answer;
    EXPECT_GE(cancelCount(), 1U) << answer;
  }
}

TEST_F(HostileCups, AJobWhoseDocumentIsNeverConfirmedFails) {
  EXPECT_THAT(refusal(silence() + "answer 200 0008\n"),
              AllOf(HasSubstr("did not respond in time"), HasSubstr("Job office-7 was cancelled")));
  EXPECT_EQ(cancelCount(), 1U);
}

/// Under UndefinedBehaviorSanitizer, the numbers must not be stored in CUPS's enumerations.
TEST_F(HostileCups, AnUndefinedStatusIsAFailure) {
  EXPECT_THAT(printers("answer 200 0\nipp 7FFF\n01\n41 status-message Odd.\n").reason,
              HasSubstr("CUPS refused to list its printers (Odd)."));
  EXPECT_THAT(refusal(printer() + "answer 200 0005\nipp 7FFF\n01\n41 status-message Odd.\n"),
              HasSubstr("CUPS did not accept the job for \"office\" (Odd)."));
  EXPECT_THAT(printers("answer 131072 0\nbody odd\n").reason, HasSubstr("CUPS is not responding"));
}

std::vector<std::string> wordsFor(const std::vector<Term> &terms) {
  return wordsOfCups("office", terms, std::chrono::milliseconds(300));
}

Term message(const char *english) {
  Term term;
  term.message = english;
  return term;
}

TEST_F(HostileCups, WithoutAResponseAnOptionHasNoTranslation) {
  for (const char *answers : {"answer 200 0\nsilent\n", "answer 500 0\n", "answer 200 0\nbody x\n"})
    EXPECT_THAT(with(answers,
                     [] {
                       return wordsFor({message("None"), message("Off")});
                     }),
                ElementsAre("", ""));
}

TEST_F(HostileCups, AnUnnamedSizeHasNoTranslation) {
  Term unnamedSize;
  unnamedSize.size = cups_size_t{};
  const auto words = with(printer(), [&] { return wordsFor({unnamedSize, Term()}); });
  ASSERT_THAT(words, SizeIs(2));
  EXPECT_EQ(words[1], "");
}

/// A local port that accepts connections and never responds.
class SilentPort {
public:
  SilentPort() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *const generic = reinterpret_cast<sockaddr *>(&address);
    if (bind(listener_, generic, size) == 0 && listen(listener_, 5) == 0 &&
        getsockname(listener_, generic, &size) == 0)
      number_ = ntohs(address.sin_port);
  }
  ~SilentPort() { close(listener_); }
  SilentPort(const SilentPort &) = delete;
  SilentPort &operator=(const SilentPort &) = delete;

  int number() const noexcept { return number_; }
  bool hasClient() const {
    pollfd waiting{listener_, POLLIN, 0};
    return poll(&waiting, 1, 0) == 1;
  }

private:
  const int listener_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  int number_ = 0;
};

TEST_F(HostileCups, AServerThatWithholdsAPrintersTranslationsIsNotWaitedFor) {
  const SilentPort other;
  const std::string uri = "http://127.0.0.1:" + std::to_string(other.number()) + "/words";
  EXPECT_THAT(with(printer() + "45 printer-strings-uri " + uri + "\n",
                   [] { return wordsFor({message("None")}); }),
              ElementsAre(""));
  EXPECT_TRUE(other.hasClient());
}

} // namespace
