// The window as it is laid out in the language of this process: no text clipped, nothing
// overlapping.
#import "host/DialogViews.h"

#include "host/Language.hpp"
#import "host/PreviewDrawing.h"
#include "host/PreviewTexts.hpp"
#include "host/WindowTexts.hpp"
#import "platform/TextBridge.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <numeric>

using namespace imageposition;

namespace {

constexpr CGFloat kArrowsOfPopUp = 30;

class WindowLayout : public testing::Test {
protected:
  void SetUp() override {
    const auto wanted = wantedLanguages(std::getenv);
    speak(chosenLanguage(wanted, IMAGEPOSITION_CATALOGUES), IMAGEPOSITION_CATALOGUES);
    views_ = buildDialog(NSMakeSize(560, 220), "report.pdf", DialogActions{});
    fill(views_.printers, {messages::kSaveAsTicket});
    fill(views_.presets, {messages::kNoPresetChosen, messages::kSavePreset, messages::kRenamePreset,
                          messages::kDeletePreset});
    fill(views_.pages,
         {messages::kAllPages, messages::kOddPages, messages::kEvenPages, messages::kPageRange});
    fill(views_.twoSided, {messages::kNotOffered});
    fill(views_.panes, {messages::kOptionsPane, messages::kSummaryTitle});
    [views_.resolve setHidden:NO];
  }

  void TearDown() override {
    [views_.window close];
    [views_.window release];
  }

  static void fill(NSPopUpButton *popUp, const std::vector<Text> &titles) {
    for (const Text &title : titles)
      [[popUp menu] addItemWithTitle:toString(title) action:NULL keyEquivalent:@""];
  }

  NSArray *placed() const { return [[views_.window contentView] subviews]; }

  DialogViews views_{};
};

TEST_F(WindowLayout, ClipsNoTitle) {
  for (NSUInteger i = 0; i < [placed() count]; i++) {
    NSView *const view = [placed() objectAtIndex:i];
    if (![view isKindOfClass:[NSControl class]] || [view isKindOfClass:[NSPopUpButton class]] ||
        view == views_.hint)
      continue;
    NSControl *const control = (NSControl *)view;
    EXPECT_LE([[control cell] cellSize].width, NSWidth([control frame]) + 0.5)
        << toText([control stringValue]);
  }
}

TEST_F(WindowLayout, ClipsNoChoiceOfItsPopUps) {
  NSFont *const font = [views_.pages font];
  for (NSPopUpButton *const popUp :
       {views_.printers, views_.presets, views_.pages, views_.twoSided, views_.panes})
    for (NSInteger i = 0; i < [popUp numberOfItems]; i++) {
      const std::string title = toText([popUp itemTitleAtIndex:i]);
      EXPECT_LE(widthOf(title, font) + kArrowsOfPopUp, NSWidth([popUp frame])) << title;
    }
}

TEST_F(WindowLayout, PutsNothingOnTopOfAnother) {
  for (NSUInteger i = 0; i < [placed() count]; i++) {
    NSView *const one = [placed() objectAtIndex:i];
    EXPECT_TRUE(NSContainsRect([[views_.window contentView] bounds], [one frame]))
        << toText([one description]);
    for (NSUInteger j = i + 1; j < [placed() count]; j++) {
      NSView *const other = [placed() objectAtIndex:j];
      EXPECT_FALSE(NSIntersectsRect([one frame], [other frame]))
          << toText([one description]) << " " << toText([other description]);
    }
  }
}

TEST_F(WindowLayout, HasRoomForTheWordsOfThePicture) {
  const NSSize size = [PreviewView preferredSize];
  PreviewRequest request;
  request.page = {{595}, {842}, {{12}, {12}, {583}, {830}}, true, true};
  request.turning = Turning::LongEdge;
  const PreviewLayout layout =
      layOutPreview(makePreview(request), {size.width, size.height, previewLineHeight()});
  const PagePlace &place = layout.pages[0];
  for (const Text &title :
       {messages::kPreviewFront, messages::kPreviewBack, messages::kPreviewAgainstLight})
    EXPECT_LE(widthOf(title, previewBoldFont()), place.title.width) << title.str();
  for (const std::string &caption :
       {messages::kPreviewNotShifted.str(), messages::kPreviewLongEdge.str(),
        messages::kPreviewShortEdge.str(), arrowText({{-77}, {-77}})})
    EXPECT_LE(widthOf(caption, previewFont()), place.caption.width) << caption;

  const double gap = layout.legend.height;
  const auto together = [gap](std::initializer_list<double> widths) {
    return std::accumulate(widths.begin(), widths.end(), gap / 2);
  };
  EXPECT_LE(together({gap + 4, widthOf(messages::kPreviewPrintable, previewFont()), gap, gap + 4,
                      widthOf(messages::kPreviewLost, previewFont()),
                      widthOf(messages::kPreviewToScale, previewFont())}),
            layout.legend.width);
  EXPECT_LE(together({widthOf(messages::kPreviewEnlarged, previewBoldFont()),
                      widthOf(messages::previewSquare("0.2 mm"), previewFont())}),
            layout.enlargedTitle.width);
  for (const std::string &words : {messages::kPreviewMarksCoincide.str(),
                                   messages::previewMarksApart(arrowText({{-99}, {-99}}))})
    EXPECT_LE(widthOf(words, previewFont()), layout.relation.width) << words;
}

} // namespace
