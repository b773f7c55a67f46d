// The pane of settings that CUPS acts on for every printer, from keys and clicks to the printer.
#include "WholeJob.hpp"

#include <algorithm>

namespace {

using namespace imageposition::test;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Key;
using testing::Not;
using testing::Pair;

class MoreSettings : public WholeJob {
protected:
  void SetUp() override {
    WholeJob::SetUp();
    addQueue("office", "finisher.ppd"); // without a panel, so that the pane has more room
  }

  static Words onOffice(const Words &options) {
    Words words{"--no-shift", "-d", "office"};
    words.insert(words.end(), options.begin(), options.end());
    words.push_back(document());
    return words;
  }
  /// What the list beside the label shows in the end: `text` as soon as it does.
  static std::string shown(const PrintWindow &window, const char *label, const std::string &text) {
    std::string last = "no list";
    window.becomes([&](const Screen &now) {
      const Control *const popUp = now.beside(label, "popup");
      last = popUp != nullptr ? popUp->text : "no list";
      return last == text;
    });
    return last;
  }
  static bool asks(const PrintWindow &window, const char *title) {
    return window.becomes([&](const Screen &) { return window.hasKeyboard(title); });
  }
  static void press(PrintWindow &window, const std::string &key, int times) {
    for (int i = 0; i < times; i++)
      window.press(key);
  }
  /// Goes to the row with Tab, which scrolls it into sight; `tabs` from the list of panes.
  static void scrollTo(PrintWindow &window, const char *label, int tabs) {
    window.press("alt+s");
    press(window, "Tab", tabs);
    ASSERT_TRUE(window.becomes([&](const Screen &shown) { return isInSight(shown, label); }));
  }
  static bool isInSight(const Screen &shown, const char *label) {
    constexpr int kSmallest = 100; // pixels, of what scrolls rows
    const Control *const popUp = shown.beside(label, "popup");
    return popUp != nullptr &&
           std::all_of(shown.controls.begin(), shown.controls.end(), [&](const Control &view) {
             return view.kind != "viewport" || view.height < kSmallest ||
                    (view.y <= popUp->y && popUp->y + popUp->height <= view.y + view.height);
           });
  }
  static bool isEnabled(const PrintWindow &window, const char *label) {
    const Screen shown = window.screen();
    const Control *const popUp = shown.beside(label, "popup");
    return popUp != nullptr && popUp->isEnabled;
  }
};

TEST_F(MoreSettings, AreReachedAndChosenWithTheKeyboard) {
  PrintWindow window(withoutPanelOn("office"));
  window.press("alt+s"); // the list of panes
  ASSERT_EQ(shown(window, "Settings:", "Printer options"), "Printer options");
  window.press("Down");
  ASSERT_EQ(shown(window, "Settings:", "More"), "More");
  window.press("Tab");
  window.press("Down");
  EXPECT_EQ(shown(window, "Orientation:", "Portrait"), "Portrait");
  window.press("Down");
  EXPECT_EQ(shown(window, "Orientation:", "Landscape"), "Landscape");
  press(window, "Tab", 2);
  window.press("Down");
  EXPECT_EQ(shown(window, "Pages per side:", "2"), "2") << "the focus stays where it is";
  EXPECT_EQ(shown(window, "Settings:", "More (2 changed)"), "More (2 changed)");
  window.press("Tab"); // the order of pages can be chosen now
  window.press("Down");
  EXPECT_EQ(shown(window, "Order of pages:", "Down, then right"), "Down, then right");
  window.click("Print");
  EXPECT_THAT(printed(jobOf(window.ended())).options,
              AllOf(Contains(Pair("orientation-requested", "4")), Contains(Pair("number-up", "2")),
                    Contains(Pair("number-up-layout", "tblr"))));
}

TEST_F(MoreSettings, ABookletIsPrintedOnBothSidesAndSaysSo) {
  PrintWindow window(withoutPanelOn("office"));
  window.choose("Settings:", "More");
  ASSERT_EQ(shown(window, "Booklet:", "Off"), "Off");
  scrollTo(window, "Booklet:", 5);
  window.choose("Booklet:", "On");
  EXPECT_TRUE(window.says("\"Two-Sided\" is now \"Short Edge\", because a booklet needs it."));
  EXPECT_EQ(shown(window, "Two-sided:", "Short Edge"), "Short Edge");
  EXPECT_FALSE(isEnabled(window, "Pages per side:"));
  window.click("Print");
  const PrintedJob job = printed(jobOf(window.ended()));
  EXPECT_THAT(job.options,
              AllOf(Contains(Pair("booklet", "true")), Contains(Pair("Duplex", "DuplexTumble"))));
}

TEST_F(MoreSettings, TimePriorityCoverPagesAndTitleReachCups) {
  PrintWindow window(withoutPanelOn("office"), {"TZ=Asia/Tokyo"});
  window.choose("Settings:", "More");
  scrollTo(window, "When to print:", 7);
  window.choose("When to print:", "At a time");
  ASSERT_TRUE(asks(window, "When to print"));
  window.enter("Hour (local time):", "24");
  EXPECT_TRUE(window.says("out of range"));
  window.enter("Hour (local time):", "18");
  window.enter("Minute:", "30");
  window.click("OK");
  ASSERT_EQ(shown(window, "When to print:", "At 18:30 (local time)"), "At 18:30 (local time)");
  scrollTo(window, "Priority:", 8);
  window.choose("Priority:", "A number");
  ASSERT_TRUE(asks(window, "Priority"));
  window.write("77");
  window.press("Return");
  ASSERT_EQ(shown(window, "Priority:", "77"), "77");
  scrollTo(window, "Cover page after:", 10);
  window.choose("Cover page after:", "Standard");
  scrollTo(window, "Title of the job:", 11);
  window.choose("Title of the job:", "Another title");
  ASSERT_TRUE(asks(window, "Title of the job"));
  window.press("ctrl+a");
  window.write("Minutes");
  window.press("Return");
  ASSERT_EQ(shown(window, "Settings:", "More (4 changed)"), "More (4 changed)");
  window.click("Print");
  ASSERT_TRUE(asks(window, "The job is waiting"));
  EXPECT_TRUE(window.says("until 18:30 (local time)"));
  window.press("Return");
  const int job = jobOf(window.ended());
  EXPECT_EQ(cups().jobAttribute(job, "job-hold-until"), "09:30");
  EXPECT_EQ(cups().jobAttribute(job, "job-priority"), "77");
  EXPECT_EQ(cups().jobAttribute(job, "job-sheets"), "none,standard");
  EXPECT_EQ(cups().jobAttribute(job, "job-name"), "Minutes");
  command({"cancel", std::to_string(job)});
}

TEST_F(MoreSettings, CancelledQuestionsChangeNothing) {
  PrintWindow window(withoutPanelOn("office"));
  window.choose("Settings:", "More");
  scrollTo(window, "When to print:", 7);
  window.choose("When to print:", "At a time");
  ASSERT_TRUE(asks(window, "When to print"));
  window.press("Escape");
  EXPECT_EQ(shown(window, "When to print:", "Now"), "Now");
  EXPECT_EQ(shown(window, "Settings:", "More"), "More");
  window.click("Cancel");
  EXPECT_EQ(window.ended().status, 1);
}

TEST_F(MoreSettings, OfTheCommandLineAreShownAndKept) {
  PrintWindow window(onOffice({"-o", "number-up=16 landscape", "-o", "fit-to-page", "-q", "77"}));
  window.choose("Settings:", "More (4 changed)");
  EXPECT_EQ(shown(window, "Pages per side:", "16"), "16");
  EXPECT_EQ(shown(window, "Orientation:", "Landscape"), "Landscape");
  EXPECT_EQ(shown(window, "Scaling:", "Fit to page"), "Fit to page");
  window.choose("Orientation:", "As in the document");
  window.click("Print");
  const PrintedJob job = printed(jobOf(window.ended()));
  EXPECT_THAT(job.options, AllOf(Contains(Pair("number-up", "16")), Not(Contains(Key("landscape"))),
                                 Contains(Pair("fit-to-page", "true"))));
}

TEST_F(MoreSettings, ADefaultOfTheQueueIsTheDefault) {
  command({"lpadmin", "-p", "office", "-o", "number-up-default=2", "-o",
           "job-sheets-default=none,standard"});
  PrintWindow window(withoutPanelOn("office"));
  window.choose("Settings:", "More");
  ASSERT_EQ(shown(window, "Pages per side:", "2"), "2");
  EXPECT_EQ(shown(window, "Cover page after:", "Standard"), "Standard");
  EXPECT_EQ(shown(window, "Settings:", "More"), "More") << "nothing is changed";
  window.choose("Pages per side:", "1");
  EXPECT_EQ(shown(window, "Settings:", "More (1 changed)"), "More (1 changed)");
  window.click("Print");
  EXPECT_EQ(cups().jobAttribute(jobOf(window.ended()), "number-up"), "1");
}

TEST_F(MoreSettings, AreKeptInPresetsButNotForTheNextJob) {
  const Words state{"XDG_STATE_HOME=" + folder.path("state")};
  PrintWindow window(withoutPanelOn("office"), state);
  window.choose("Settings:", "More");
  window.choose("Pages per side:", "4");
  scrollTo(window, "Cover page before:", 10); // the order of pages takes the focus, too
  window.choose("Cover page before:", "Standard");
  window.choose("Preset:", "Save as preset");
  ASSERT_TRUE(asks(window, "Name of the preset"));
  window.press("ctrl+a");
  window.write("four");
  window.press("Return");
  ASSERT_EQ(shown(window, "Preset:", "four"), "four");
  window.click("Print");
  jobOf(window.ended());
  PrintWindow again(withoutPanelOn("office"), state);
  again.choose("Settings:", "More (1 changed)");
  EXPECT_EQ(shown(again, "Pages per side:", "1"), "1");
  EXPECT_EQ(shown(again, "Cover page before:", "Standard"), "Standard");
  again.choose("Preset:", "four");
  EXPECT_EQ(shown(again, "Pages per side:", "4"), "4");
  again.choose("Preset:", "None");
  EXPECT_EQ(shown(again, "Pages per side:", "1"), "1");
  again.click("Cancel");
  EXPECT_EQ(again.ended().status, 1);
}

TEST_F(MoreSettings, UnknownValuesAreMentionedAndStillSent) {
  PrintWindow window(onOffice({"-o", "print-scaling=bogus", "-o", "MediaType=Gold"}));
  EXPECT_TRUE(window.says("\"bogus\" is not a value of \"print-scaling\""));
  EXPECT_TRUE(window.says("\"Gold\" is not a value of \"MediaType\""));
  window.choose("Settings:", "More (1 changed)");
  EXPECT_EQ(shown(window, "Scaling:", "bogus"), "bogus");
  window.click("Print");
  const ProcessResult &result = window.ended();
  EXPECT_THAT(result.errors, HasSubstr("Valid values include: auto, none, fit, fill."));
  EXPECT_THAT(printed(jobOf(result)).options, Contains(Pair("print-scaling", "bogus")));
}

} // namespace
