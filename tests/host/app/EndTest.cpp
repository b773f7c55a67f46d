// The end of the program while CUPS or a document keeps it waiting.
#include "DrippingServer.hpp"
#include "WindowFixture.hpp"

#include <csignal>
#include <sys/stat.h>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;

/// A job of which CUPS has only the first document, because the second is a pipe without a writer.
class HalfAJob : public QueueWindow {
protected:
  void SetUp() override {
    QueueWindow::SetUp();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  }

  static std::string jobs() { return cups->run({"lpstat", "-W", "not-completed", "-o"}).output; }
  static bool isCreated() {
    return becomesTrue([] { return jobs().find("office-") != std::string::npos; });
  }

  const std::string pipe = folder.path("never.pdf");
};

TEST_F(HalfAJob, IsCancelledByASignalThatEndsTheProgram) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    Process batch({PRINT_DIALOG, "--batch", "-d", "office", sample("two-sided.pdf"), pipe},
                  cups->environment());
    ASSERT_TRUE(isCreated());
    batch.send(signal);
    EXPECT_EQ(batch.wait().status, 128 + signal);
    EXPECT_EQ(jobs(), "");
  }
}

TEST_F(HalfAJob, IsCancelledByASignalToTheWindow) {
  start({"-d", "office", sample("two-sided.pdf"), pipe}, cups->environment());
  press({"Return"});
  ASSERT_TRUE(isCreated());
  dialogProcess->send(SIGTERM);
  EXPECT_EQ(ended().status, 128 + SIGTERM);
  EXPECT_EQ(jobs(), "");
}

TEST_F(HalfAJob, IsCancelledByTheEndOfTheDisplay) {
  Process server(
      {"Xvfb", "-displayfd", "2", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"});
  std::string number;
  ASSERT_TRUE(becomesTrue([&] {
    std::istringstream lines(server.errorsSoFar());
    for (std::string line; std::getline(lines, line) && !lines.eof();)
      if (!line.empty() && line.find_first_not_of("0123456789") == std::string::npos)
        number = line;
    return !number.empty();
  }));
  Words environment = cups->environment();
  environment.push_back("DISPLAY=:" + number);
  Process dialog({PRINT_DIALOG, "-d", "office", sample("two-sided.pdf"), pipe}, environment);
  ASSERT_TRUE(becomesTrue([&] {
    return runProcess({"xdotool", "getwindowfocus", "getwindowname"}, environment).output ==
           "Print\n";
  }));
  runProcess({"xdotool", "key", "Return"}, environment);
  ASSERT_TRUE(isCreated());
  server.send(SIGTERM);
  EXPECT_NE(dialog.wait().status, 0);
  EXPECT_EQ(jobs(), "");
}

TEST_F(QueueWindow, TheBatchEndsWithAMessageIfCupsHangs) {
  for (const Words &queue : {Words{"-d", "office"}, Words{}}) {
    Words words{PRINT_DIALOG, "--batch", sample("two-sided.pdf")};
    words.insert(words.end(), queue.begin(), queue.end());
    cups->send(SIGSTOP);
    constexpr int kPatience = 30; // seconds
    Process batch(words, cups->environment(), kPatience);
    const ProcessResult &result = batch.wait();
    cups->send(SIGCONT);
    EXPECT_EQ(result.status, kPrinter) << testing::PrintToString(result);
    EXPECT_THAT(result.errors, HasSubstr("CUPS is not responding at"));
  }
}

class Dripping : public Window {
protected:
  const DrippingServer server;
};

TEST_F(Dripping, AServerDoesNotKeepTheWindowFromOpeningNorFromClosing) {
  Process dialog({PRINT_DIALOG, "-d", "office", sample("two-sided.pdf")},
                 {"CUPS_SERVER=" + server.socket()});
  ASSERT_TRUE(becomesTrue([] { return isFocused("Please wait"); }));
  press({"Escape"});
  EXPECT_EQ(dialog.wait().status, kCancelled);
}

} // namespace
