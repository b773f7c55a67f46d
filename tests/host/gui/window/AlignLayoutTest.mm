// The window that aligns, in the language of this process: no text clipped, nothing overlapping.
#import "AlignPanel.h"

#import "Labels.h"
#include "Language.hpp"
#import "ModalLook.h"
#include "TemporaryFolder.hpp"
#import "TextBridge.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <sstream>
#include <stdlib.h>
#include <string>

using namespace imageposition;

namespace {

constexpr NSSize kLargeTextOnSmallScreen = {905, 485}; // points, of 1366 by 768 pixels at 1.5

class AlignLayout : public testing::TestWithParam<AlignmentSteps::Step> {
protected:
  void SetUp() override {
    setenv("XDG_CONFIG_HOME", folder_.path().c_str(), 1);
    const auto wanted = wantedLanguages(std::getenv);
    speak(chosenLanguage(wanted, IMAGEPOSITION_CATALOGUES), IMAGEPOSITION_CATALOGUES);
    arguments_.ppd = IMAGEPOSITION_SAMPLES "/duplex-shift.ppd";
  }
  void TearDown() override { unsetenv("XDG_CONFIG_HOME"); }

  /// Brings the steps there.
  void goTo(AlignmentSteps &steps, AlignmentSteps::Step step) {
    if (step == AlignmentSteps::Step::Print)
      return;
    steps.read();
    const char *const turned[] = {"-10.5", "-10.5", "10.4", "10.4"};
    for (std::size_t column = 0; column < kVernierCount; column++)
      steps.form().enter({0, column}, turned[column]);
    if (step == AlignmentSteps::Step::Check)
      steps.takeOffsets();
  }

  void inWindow(const std::function<void(NSWindow *)> &look) {
    PrintJob job(arguments_, openPrinter(arguments_));
    AlignmentSteps steps(job, errors_);
    goTo(steps, GetParam());
    test::inModalWindow([&] { align(nil, steps, {}); }, look);
  }

  const test::TemporaryFolder folder_;
  Arguments arguments_;
  std::ostringstream errors_;
};

TEST_P(AlignLayout, FitsOnASmallScreen) {
  inWindow([](NSWindow *window) {
    const NSSize size = [[window contentView] frame].size;
    EXPECT_LE(size.width, kLargeTextOnSmallScreen.width);
    EXPECT_LE(size.height, kLargeTextOnSmallScreen.height);
  });
}

TEST_P(AlignLayout, ClipsNoText) {
  inWindow([](NSWindow *window) {
    test::eachShown([window contentView], [](NSView *view) {
      if (![view isKindOfClass:[NSTextField class]] && ![view isKindOfClass:[NSButton class]])
        return;
      NSControl *const control = (NSControl *)view;
      const std::string text = toText(
          [view isKindOfClass:[NSButton class]] ? [(NSButton *)view title] : [control stringValue]);
      const bool isOneLine = [[control cell] cellSize].width <= NSWidth([control frame]) + 0.5;
      const bool isWrapped =
          [[control cell] wraps] &&
          paragraphHeight([control stringValue], [control font], NSWidth([control frame])) <=
              NSHeight([control frame]) + 0.5;
      EXPECT_TRUE(isOneLine || isWrapped) << text;
    });
  });
}

TEST_P(AlignLayout, OverlapsNoViews) {
  inWindow([](NSWindow *window) { test::expectNoOverlaps(window); });
}

INSTANTIATE_TEST_SUITE_P(Steps, AlignLayout,
                         testing::Values(AlignmentSteps::Step::Print, AlignmentSteps::Step::Read,
                                         AlignmentSteps::Step::Check));

} // namespace
