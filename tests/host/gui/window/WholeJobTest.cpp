// The dialog as a user operates it, with a private CUPS server.
#include "WholeJob.hpp"

#include "Picture.hpp"

#include <cmath>
#include <optional>
#include <thread>

namespace {

using namespace imageposition::test;
using testing::Contains;
using testing::HasSubstr;
using testing::Pair;

TEST_F(WholeJob, APrinterIsChosenByMouseAndItsPanelAppears) {
  addQueue("attic", "duplex-plain.ppd");
  PrintWindow window(onQueue("attic"));
  EXPECT_FALSE(window.screen().says("plug-in"));
  window.choose("Printer:", "office");
  ASSERT_TRUE(window.says(kLeftRight));
  EXPECT_FALSE(window.screen().says("No plug-in has a panel"));
  window.enter(kLeftRight, "-3");
  window.click("Print");
  const PrintedJob job = printed(jobOf(window.ended()));
  EXPECT_THAT(job.environment, Contains(Pair("PRINTER", "office")));
  expectValues(job, {false, {-3, 0, 0, 0}});
  command({"lpadmin", "-x", "attic"});
}

TEST_F(WholeJob, TwoSidedOffDisablesThePanelAndExplainsWhyUntilItIsOnAgain) {
  const auto arePanelControlsOn = [](bool on) {
    return [on](const Screen &shown) {
      const Control *const field = shown.beside(kLeftRight, "field");
      const Control *const stepper = shown.beside(kLeftRight, "stepper");
      const Control *const checkbox = shown.find("button", kSeparateOffsets);
      return field != nullptr && stepper != nullptr && checkbox != nullptr &&
             field->isEnabled == on && stepper->isEnabled == on && checkbox->isEnabled == on &&
             shown.says("Two-sided printing is off.") != on;
    };
  };
  PrintWindow window(onQueue("office"));
  ASSERT_TRUE(window.becomes(arePanelControlsOn(true)));
  window.choose("Two-sided:", "Off");
  EXPECT_TRUE(window.becomes(arePanelControlsOn(false)));
  EXPECT_EQ(Picture(window.screen()).back().right, -1); // there is no other side
  window.choose("Two-sided:", "Short Edge");
  EXPECT_TRUE(window.becomes(arePanelControlsOn(true)));
  window.enter(kTopBottom, "7");
  window.click("Print");
  const PrintedJob job = printed(jobOf(window.ended()));
  expectValues(job, {false, {0, 7, 0, 0}});
  EXPECT_THAT(job.options, Contains(Pair("Duplex", "DuplexTumble")));
}

TEST_F(WholeJob, TheChoiceOfARangeStaysWhenTheRangeIsRejected) {
  PrintWindow window(onQueue("office"));
  for (const char *key : {"alt+a", "space", "Down", "Down", "Down", "Return"})
    window.press(key);
  window.write("9-2");
  window.press("Tab");
  ASSERT_TRUE(window.says("9-2 is in the wrong order"));
  EXPECT_TRUE(window.becomes([](const Screen &shown) {
    const Control *const pages = shown.beside("Pages:", "popup");
    return pages != nullptr && pages->text == "Range";
  }));
  window.press("shift+Tab");
  window.write("2-9");
  window.click("Print");
  EXPECT_THAT(printed(jobOf(window.ended())).options, Contains(Pair("page-ranges", "2-9")));
}

class ThePicture : public WholeJob {
protected:
  /// Expects an outline to have moved this far, in tenths of a millimetre on the paper, give or
  /// take a pixel.
  static void expectMoved(const Outline &from, const Outline &to, const Outline &paper, int right,
                          int down) {
    constexpr double kPaperWidth = 2100; // A4
    const double pixels = (paper.right - paper.left + 1) / kPaperWidth;
    EXPECT_NEAR(to.left - from.left, right * pixels, 1);
    EXPECT_NEAR(to.right - from.right, right * pixels, 1);
    EXPECT_NEAR(to.top - from.top, down * pixels, 1);
    EXPECT_NEAR(to.bottom - from.bottom, down * pixels, 1);
  }

  /// Waits until the picture is drawn, which may be after the text beside it. The row of controls
  /// that turn the sheets makes it smaller.
  static Picture painted(const PrintWindow &window) {
    std::optional<Picture> picture;
    EXPECT_TRUE(window.becomes([&](const Screen &shown) {
      picture.emplace(shown);
      return shown.says("Sheet 1 of") && picture->paper().bottom > 0 &&
             picture->front().bottom > 0 && picture->back().bottom > 0;
    }));
    return *picture;
  }

  /// Waits for the first picture in which the outline differs.
  template <typename Measure>
  static Outline next(const PrintWindow &window, const Outline &before, Measure &&measure) {
    Outline now = before;
    EXPECT_TRUE(window.becomes([&](const Screen &shown) {
      now = measure(Picture(shown));
      return now.left != before.left || now.top != before.top;
    }));
    return now;
  }
};

TEST_F(ThePicture, MovesTheContentToScaleByTheTypedOffset) {
  PrintWindow window(onQueue("office"));
  window.tick(kSeparateOffsets, true);
  const Picture still = painted(window);
  const Outline paper = still.paper();
  const Outline front = still.front();
  const Outline back = still.back();
  ASSERT_GT(front.bottom, front.top);
  ASSERT_GT(back.bottom, back.top);

  Outline now = front;
  const auto theFront = [](const Picture &picture) { return picture.front(); };
  const auto theBack = [](const Picture &picture) { return picture.back(); };
  window.enter(kFrontLeftRight, "100");
  expectMoved(front, now = next(window, now, theFront), paper, 100, 0);
  window.enter(kFrontLeftRight, "-100");
  expectMoved(front, now = next(window, now, theFront), paper, -100, 0);
  window.enter(kFrontTopBottom, "100");
  expectMoved(front, now = next(window, now, theFront), paper, -100, 100);
  window.enter(kFrontTopBottom, "-100");
  expectMoved(front, next(window, now, theFront), paper, -100, -100);

  expectMoved(back, Picture(window.screen()).back(), paper, 0, 0);
  window.enter(kBackLeftRight, "100");
  expectMoved(back, now = next(window, back, theBack), paper, 100, 0);
  window.enter(kBackTopBottom, "-100");
  expectMoved(back, next(window, now, theBack), paper, 100, -100);
}

TEST_F(ThePicture, MovesBothSidesAlikeWithoutTheTick) {
  PrintWindow window(onQueue("office"));
  ASSERT_TRUE(window.says(kLeftRight));
  const Picture still = painted(window);
  window.enter(kLeftRight, "100");
  const Outline front =
      next(window, still.front(), [](const Picture &picture) { return picture.front(); });
  expectMoved(still.front(), front, still.paper(), 100, 0);
  expectMoved(still.back(), Picture(window.screen()).back(), still.paper(), 100, 0);
}

TEST_F(ThePicture, ShowsEachClickOnAStepperEnlarged) {
  PrintWindow window(onQueue("office"));
  window.tick(kSeparateOffsets, true);
  painted(window);
  window.enter(kBackLeftRight, "10"); // its mark no longer hides the front's
  const auto moves = [&](const char *label, bool up, int rightwards, int downwards) {
    const Picture before(window.screen());
    window.step(label, up);
    EXPECT_TRUE(window.becomes([&](const Screen &shown) {
      const Picture now(shown);
      return (now.frontMarkX() - before.frontMarkX()) * rightwards > 0 ||
             (now.frontMarkY() - before.frontMarkY()) * downwards > 0;
    })) << label
        << (up ? " up" : " down");
  };
  moves(kFrontLeftRight, true, -1, 0); // seen through the sheet, from its back
  EXPECT_EQ(window.field(kFrontLeftRight), "1");
  moves(kFrontLeftRight, true, -1, 0);
  moves(kFrontLeftRight, false, 1, 0);
  moves(kFrontTopBottom, true, 0, 1);
  moves(kFrontTopBottom, false, 0, -1);
  moves(kFrontTopBottom, false, 0, -1);
  EXPECT_EQ(window.field(kFrontTopBottom), "-1");
  window.click("Print");
  expectValues(printed(jobOf(window.ended())), {true, {1, -1, 10, 0}});
}

TEST_F(WholeJob, APresetIsSavedAndChosenAfterARestartAndPrinted) {
  const PanelValues values{true, {-100, 7, 100, -7}};
  {
    PrintWindow window(onQueue("office"));
    enter(window, values);
    window.choose("Two-sided:", "Short Edge");
    window.choose("Preset:", "Save as preset");
    ASSERT_TRUE(
        window.becomes([&](const Screen &) { return window.hasKeyboard("Name of the preset"); }));
    window.write("calibrated");
    window.click("OK");
    ASSERT_TRUE(window.becomes([](const Screen &shown) {
      const Control *const preset = shown.beside("Preset:", "popup");
      return preset != nullptr && preset->text == "calibrated";
    }));
    window.click("Cancel");
    EXPECT_EQ(window.ended().status, 1);
  }
  PrintWindow window(onQueue("office"));
  EXPECT_EQ(window.field(kLeftRight), "0");
  window.choose("Preset:", "calibrated");
  ASSERT_TRUE(
      window.becomes([&](const Screen &) { return window.field(kFrontLeftRight) == "-100"; }));
  EXPECT_EQ(window.field(kFrontTopBottom), "7");
  EXPECT_EQ(window.field(kBackLeftRight), "100");
  EXPECT_EQ(window.field(kBackTopBottom), "-7");
  window.click("Print");
  const PrintedJob job = printed(jobOf(window.ended()));
  expectValues(job, values);
  EXPECT_THAT(job.options, Contains(Pair("Duplex", "DuplexTumble")));
  EXPECT_THAT(job.arguments.at(2), "two-sided.pdf");
  EXPECT_THAT(job.environment, Contains(Pair("PRINTER", "office")));
  command({"lpoptions", "-x", "office/calibrated"});
}

} // namespace
