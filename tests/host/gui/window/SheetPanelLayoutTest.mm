// The window with an enlarged sheet, in the language of this process: nothing overlapping.
#import "SheetPanel.h"

#include "Language.hpp"
#import "ModalLook.h"
#import "PrintSession.h"
#include "ShownJob.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using namespace imageposition;

Arguments argumentsWithDocument() {
  Arguments arguments;
  arguments.ppd = IMAGEPOSITION_SAMPLES "/duplex-shift.ppd";
  arguments.documents = {IMAGEPOSITION_SAMPLES "/two-sided.pdf"};
  return arguments;
}

/// The size of the window that is printed from, in points.
class SheetPanelLayout : public testing::TestWithParam<NSSize> {
protected:
  void SetUp() override {
    const auto wanted = wantedLanguages(std::getenv);
    speak(chosenLanguage(wanted, IMAGEPOSITION_CATALOGUES), IMAGEPOSITION_CATALOGUES);
    images_.show(documentToShow(job_, session_.destinations().list(), 1270));
    images_.turnTo(600);
  }

  const Arguments arguments_ = argumentsWithDocument();
  PrintJob job_{arguments_, openPrinter(arguments_)};
  DocumentExaminer examiner_;
  PrintSession session_{job_, examiner_};
  SheetImages images_{[] {}};
};

TEST_P(SheetPanelLayout, OverlapsNoViews) {
  ASSERT_EQ(images_.order().sheets(), 635);
  const NSSize size = GetParam();
  NSWindow *const parent =
      [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, size.width, size.height)
                                  styleMask:NSBorderlessWindowMask
                                    backing:NSBackingStoreBuffered
                                      defer:NO];
  [parent setReleasedWhenClosed:NO];
  [parent orderFront:nil];
  PreviewRequest request;
  request.page = {{595}, {842}, {{12}, {12}, {583}, {830}}, true, true};
  const Preview preview = makePreview(request);
  SheetPanel panel(images_, preview);
  test::inModalWindow([&] { panel.show(parent, PreviewLayout::AgainstLight); },
                      [&](NSWindow *window) {
                        test::expectNoOverlaps(window);
                        EXPECT_LE([[window contentView] frame].size.width, size.width);
                      });
  [parent close];
  [parent release];
}

INSTANTIATE_TEST_SUITE_P(Sizes, SheetPanelLayout,
                         testing::Values(NSMakeSize(1000, 640), NSMakeSize(528, 373),
                                         NSMakeSize(480, 380), NSMakeSize(390, 270),
                                         NSMakeSize(264, 190)));

} // namespace
