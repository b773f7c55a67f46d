// Failures between opening the window and printing: the window reports them and keeps the user's
// input.
#include "DrawnPdf.hpp"
#include "WholeJob.hpp"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>

namespace {

using namespace imageposition::test;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr PanelValues kEntered{true, {-3, 7, 0, -100}};
constexpr std::size_t kLarge = 200u << 20;

class Failing : public WholeJob {
protected:
  static void fillIn(PrintWindow &window) {
    enter(window, kEntered);
    window.enter("Copies:", "2");
  }

  static void expectAllIsStillThere(const PrintWindow &window) {
    const char *const labels[] = {kFrontLeftRight, kFrontTopBottom, kBackLeftRight, kBackTopBottom};
    for (int i = 0; i < 4; i++)
      EXPECT_EQ(window.field(labels[i]), std::to_string(kEntered.offsets[i]));
    EXPECT_EQ(window.field("Copies:"), "2");
  }

  static void expectPrinted(PrintWindow &window) {
    const PrintedJob job = printed(jobOf(window.ended()));
    expectValues(job, kEntered);
    EXPECT_EQ(job.arguments.at(3), "2");
  }

  /// The enabled controls with their content.
  static std::vector<std::string> usable(const PrintWindow &window) {
    std::vector<std::string> found;
    for (const Control &control : window.screen().controls)
      if (control.isEnabled && control.kind != "label" && control.kind != "viewport")
        found.push_back(control.kind + " " + control.text);
    return found;
  }

  /// Closes the window that explains why the job waits.
  static void closeNote(PrintWindow &window, const std::string &why, const std::string &key) {
    ASSERT_TRUE(window.becomes([&](const Screen &shown) {
      return shown.keyWindow == "The job is waiting" && shown.says(why);
    }));
    ASSERT_TRUE(comesTrue([&] { return window.hasKeyboard("The job is waiting"); }));
    EXPECT_FALSE(window.screen().says("Sending")) << "that is over";
    EXPECT_FALSE(window.process().hasEnded());
    window.press(key);
  }

  static long peakMemoryInKilobytes(PrintWindow &window) {
    std::ifstream status("/proc/" + std::to_string(window.process().id()) + "/status");
    for (std::string line; std::getline(status, line);)
      if (line.compare(0, 6, "VmHWM:") == 0)
        return std::atol(line.c_str() + 6);
    return -1;
  }

  /// Suspends CUPS as soon as it has part of a document.
  static bool stopsCupsHalfWay() {
    const auto spooled = [] {
      std::uintmax_t most = 0;
      std::error_code ignored;
      for (const auto &entry :
           std::filesystem::directory_iterator(cups().root() + "/spool", ignored))
        if (entry.is_regular_file(ignored))
          most = std::max(most, entry.file_size(ignored));
      return most;
    };
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (spooled() < (1u << 20)) // without a pause: the whole transfer takes less than a second
      if (std::chrono::steady_clock::now() > deadline)
        return false;
    cups().send(SIGSTOP);
    return true;
  }
};

TEST_F(Failing, AStoppedServerIsReportedAndPrintWorksOnceItRunsAgain) {
  PrintWindow window(onQueue("office"));
  fillIn(window);
  cups().stop();
  window.click("Print");
  ASSERT_TRUE(window.says("CUPS is not responding"));
  EXPECT_FALSE(window.process().hasEnded());
  expectAllIsStillThere(window);
  cups().start();
  window.click("Print");
  expectPrinted(window);
}

TEST_F(Failing, ADeletedQueueIsReportedAndPrintWorksOnceItIsBack) {
  PrintWindow window(onQueue("office"));
  fillIn(window);
  command({"lpadmin", "-x", "office"});
  window.click("Print");
  ASSERT_TRUE(window.says("CUPS no longer has a printer \"office\". Nothing was printed."));
  expectAllIsStillThere(window);
  addQueue("office");
  window.click("Print");
  expectPrinted(window);
}

TEST_F(Failing, ARejectingQueueIsReportedAndPrintWorksOnceItAccepts) {
  PrintWindow window(onQueue("office"));
  fillIn(window);
  command({"cupsreject", "office"});
  window.click("Print");
  ASSERT_TRUE(window.says("is not accepting jobs"));
  expectAllIsStillThere(window);
  command({"cupsaccept", "office"});
  window.click("Print");
  expectPrinted(window);
}

TEST_F(Failing, APausedQueueAcceptsTheJobAndTheWindowExplainsHowToResumeIt) {
  PrintWindow window(onQueue("office"));
  fillIn(window);
  command({"cupsdisable", "office"});
  window.click("Print");
  closeNote(window, "is not printing", "Return");
  const int job = jobOf(window.ended());
  EXPECT_THAT(window.ended().errors,
              AllOf(HasSubstr("is not printing"), HasSubstr("cupsenable office")));
  EXPECT_THAT(waitingJobs(), HasSubstr("office-" + std::to_string(job)));
  EXPECT_FALSE(hasPrinted(job));
  command({"cupsenable", "office"});
  expectPrinted(window);
}

TEST_F(Failing, AHeldJobIsKeptAndTheWindowExplainsHowToReleaseIt) {
  PrintWindow window({"-d", "office", "-o", "job-hold-until=indefinite", document()});
  fillIn(window);
  window.click("Print");
  closeNote(window, "is on hold", "Escape");
  const std::string name = "office-" + std::to_string(jobOf(window.ended()));
  EXPECT_THAT(window.ended().errors, AllOf(HasSubstr("is on hold"), HasSubstr("-i " + name)));
  EXPECT_THAT(waitingJobs(), HasSubstr(name));
  EXPECT_EQ(printedCount(), 0);
  command({"lp", "-i", name, "-H", "resume"});
  expectPrinted(window);
}

TEST_F(Failing, ALargeDocumentIsStreamedWithProgressAndCancelLeavesNothing) {
  PrintWindow window({"-d", "office", JobFixture::document(kLarge)});
  fillIn(window);
  const long before = peakMemoryInKilobytes(window);
  window.click("Print");
  ASSERT_TRUE(stopsCupsHalfWay());
  EXPECT_TRUE(window.becomes([](const Screen &shown) {
    for (const Control &control : shown.controls)
      if (control.kind == "progress" && std::stod(control.text) > 0 && std::stod(control.text) < 1)
        return shown.says(" of 209.7 MB");
    return false;
  }));
  window.click("Cancel");
  cups().send(SIGCONT);
  ASSERT_TRUE(window.says("Nothing was printed"));
  EXPECT_FALSE(window.process().hasEnded());
  EXPECT_THAT(waitingJobs(), IsEmpty());
  expectAllIsStillThere(window);
  // A small part of the document; sanitizers keep freed memory for a while.
  EXPECT_LT(peakMemoryInKilobytes(window) - before, long{kLarge / 1024 / 8});

  window.click("Print");
  const PrintedJob job = printed(jobOf(window.ended()));
  EXPECT_EQ(job.bytes, kLarge);
  expectValues(job, kEntered);
  EXPECT_EQ(printedCount(), 1); // the cancelled one left nothing
}

TEST_F(Failing, CancelWhileTheImageIsMovedLeavesNothing) {
  addQueue("plain", "duplex-plain.ppd");
  const TemporaryFolder temporary;
  const std::string brief = folder.write("brief.pdf", pdfWithNumberedPages(1));
  const std::string lengthy = folder.write("lengthy.pdf", pdfWithNumberedPages(6000));
  PrintWindow window({"-d", "plain", brief, lengthy}, {"TMPDIR=" + temporary.path()});
  fillIn(window);
  const auto files = [&] {
    std::set<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(temporary.path()))
      names.insert(entry.path().filename());
    return names;
  };
  const auto before = files();
  window.click("Print");
  EXPECT_TRUE(window.becomes([](const Screen &shown) {
    for (const Control &control : shown.controls)
      if (control.kind == "progress" && std::stod(control.text) == 0.5)
        return shown.says("Laying out the pages: 50 %");
    return false;
  }));
  EXPECT_NE(files(), before);
  window.press("Escape");
  ASSERT_TRUE(window.says("Nothing was printed"));
  EXPECT_EQ(runProcess({"pgrep", "-f", "print-dialog-mover.*" + lengthy}).output, "");
  EXPECT_EQ(files(), before);
  EXPECT_THAT(waitingJobs(), IsEmpty());
  expectAllIsStillThere(window);
  command({"lpadmin", "-x", "plain"});
}

TEST_F(Failing, ADocumentThatWasMovedBeforeIsPrintedAsItIsOnceTheUserAgrees) {
  addQueue("plain", "duplex-plain.ppd");
  std::string content = pdfWithNumberedPages(2);
  const std::string catalogue = "/Type /Catalog";
  content.insert(content.find(catalogue) + catalogue.size(),
                 " /PieceInfo << /ImagePosition << >> >>");
  PrintWindow window({"-d", "plain", folder.write("moved.pdf", content)});
  fillIn(window);
  window.click("Print");
  const auto asks = [&] {
    return comesTrue([&] { return window.hasKeyboard("Print as it is?"); }) &&
           window.says("\"moved.pdf\" was moved before") && !window.screen().says("--no-shift");
  };
  ASSERT_TRUE(asks());
  window.press("Return");
  ASSERT_TRUE(comesTrue([&] { return window.hasKeyboard("Print"); }));
  expectAllIsStillThere(window);
  EXPECT_THAT(waitingJobs(), IsEmpty());
  window.click("Print");
  ASSERT_TRUE(asks());
  window.click("Print as it is");
  const PrintedJob job = printed(jobOf(window.ended()));
  EXPECT_EQ(job.bytes, content.size());
  EXPECT_THAT(job.optionText, testing::Not(HasSubstr("LeftRightMargin")));
  EXPECT_EQ(printedCount(), 1);
  command({"lpadmin", "-x", "plain"});
}

TEST_F(Failing, OnlyCancelIsEnabledWhileADocumentIsSent) {
  PrintWindow window({"-d", "office", JobFixture::document(kLarge)});
  fillIn(window);
  const auto before = usable(window);
  window.press("alt+c");
  window.press("Return");
  ASSERT_TRUE(stopsCupsHalfWay());
  ASSERT_TRUE(window.says("Sending: "));
  const auto isCancel = [](const std::string &control) {
    return control == "button Cancel" || control.compare(0, 8, "progress") == 0 ||
           control.compare(0, 7, "picture") == 0;
  };
  for (const std::string &control : usable(window))
    EXPECT_TRUE(isCancel(control)) << control;
  for (const char *key : {"alt+c", "9", "alt+p", "F1", "Return"})
    window.press(key);
  window.press("Escape");
  cups().send(SIGCONT);
  ASSERT_TRUE(window.says("Nothing was printed"));
  EXPECT_EQ(window.screen().keyWindow, "Print"); // not the help
  EXPECT_EQ(usable(window), before);
  expectAllIsStillThere(window);
  window.press("ctrl+a"); // the field has the keyboard again
  window.write("3");
  EXPECT_TRUE(window.becomes([&](const Screen &) { return window.field("Copies:") == "3"; }));
}

TEST_F(Failing, AClockThatIsSetBackDoesNotKeepTheWindowOpen) {
  const std::string setBack = folder.path("set back");
  PrintWindow window({"-d", "office", JobFixture::document(kLarge)},
                     {"LD_PRELOAD=" CLOCK, "CLOCK_FILE=" + setBack});
  window.click("Print");
  ASSERT_TRUE(stopsCupsHalfWay());
  folder.write("set back", "");
  cups().send(SIGCONT);
  EXPECT_EQ(printed(jobOf(window.ended())).bytes, kLarge);
}

TEST_F(Failing, APanelWithoutAViewIsReportedInItsPaneAndNotUsed) {
  const std::string journal = folder.path("journal");
  PrintWindow window({"--plugin", FIXTURE_PLUGIN, "-d", "office", document()},
                     {"FIXTURE_BEHAVIOUR=no view", "FIXTURE_JOURNAL=" + journal});
  EXPECT_TRUE(window.becomes([](const Screen &shown) {
    return shown.find("popup", "Fixture Panel") != nullptr &&
           shown.says("Fixture.plugin\" has no view. Reinstall the plug-in.");
  }));
  window.click("Print");
  printed(jobOf(window.ended()));
  EXPECT_THAT(contentOf(journal), testing::EndsWith("supportedPPDOptionKeys\npanelView\n"));
}

} // namespace
