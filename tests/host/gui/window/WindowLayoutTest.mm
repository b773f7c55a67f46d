// The layout of the window in the language of this process: no text clipped, nothing overlapping.
#import "PrintDialog.h"

#include "Language.hpp"
#include "PictureTexts.hpp"
#import "PreviewDrawing.h"
#include "ShiftTexts.hpp"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <numeric>
#include <sstream>
#include <vector>

using namespace imageposition;

namespace {

constexpr CGFloat kArrowsOfPopUp = 30;

const NSSize kWide = {2000, 1200};
const NSSize kLargeTextOnSmallScreen = {848, 656}; // points, of 1280 by 1024 pixels at 1.5
const NSSize kSmallScreen = {1016, 728};
const NSSize kLargeTextOnOldScreen = {528, 373}; // points, of 800 by 600 pixels at 1.5

Arguments argumentsForPrinter() {
  Arguments arguments;
  arguments.ppd = IMAGEPOSITION_SAMPLES "/duplex-plain.ppd";
  arguments.plugins = {FIXTURE_PLUGIN};
  arguments.documents = {"report.pdf"};
  return arguments;
}

class WindowLayout : public testing::TestWithParam<NSSize> {
protected:
  void SetUp() override {
    const auto wanted = wantedLanguages(std::getenv);
    speak(chosenLanguage(wanted, IMAGEPOSITION_CATALOGUES), IMAGEPOSITION_CATALOGUES);
    session_.loadPanels();
    dialog_ = [[PrintDialog alloc] initWithSession:&session_
                                            errors:&errors_
                                              pane:NSMakeSize(560, 247)
                                              room:GetParam()];
    showResolve();
  }

  void TearDown() override { [dialog_ release]; }

  /// The views of the window, and those of the part that scrolls when the window is low.
  NSArray *placed() const {
    NSArray *const views = [[[dialog_ window] contentView] subviews];
    KeyScrollView *const upper = [views objectAtIndex:0];
    NSArray *const rest = [views subarrayWithRange:NSMakeRange(1, [views count] - 1)];
    NSMutableArray *const visible = [NSMutableArray array];
    NSArray *const all = [[[upper documentView] subviews] arrayByAddingObjectsFromArray:rest];
    for (NSUInteger i = 0; i < [all count]; i++)
      if (![[all objectAtIndex:i] isHidden])
        [visible addObject:[all objectAtIndex:i]];
    return visible;
  }

  template <typename View> std::vector<View *> placedOf(Class kind) const {
    std::vector<View *> found;
    for (NSUInteger i = 0; i < [placed() count]; i++)
      if ([[placed() objectAtIndex:i] isKindOfClass:kind])
        found.push_back([placed() objectAtIndex:i]);
    return found;
  }

  /// Shows the buttons that appear for a conflict.
  void showResolve() {
    NSArray *const views = [[[dialog_ window] contentView] subviews];
    for (NSUInteger i = 0; i < [views count]; i++)
      if ([[views objectAtIndex:i] isKindOfClass:[NSButton class]])
        [[views objectAtIndex:i] setHidden:NO];
    [dialog_ windowDidResize:nil];
  }

  const Arguments arguments_ = argumentsForPrinter();
  PrintJob job_{arguments_, openPrinter(arguments_)};
  DocumentExaminer examiner_;
  PrintSession session_{job_, examiner_};
  std::ostringstream errors_;
  PrintDialog *dialog_ = nil;
};

TEST_P(WindowLayout, ClipsNoTitle) {
  for (NSUInteger i = 0; i < [placed() count]; i++) {
    NSView *const view = [placed() objectAtIndex:i];
    // A stepper has no title, and measuring one corrupts the stack on 32-bit systems.
    if (![view isKindOfClass:[NSControl class]] || [view isKindOfClass:[NSPopUpButton class]] ||
        [view isKindOfClass:[NSStepper class]] || [[(NSControl *)view cell] wraps])
      continue;
    NSControl *const control = (NSControl *)view;
    EXPECT_LE([[control cell] cellSize].width, NSWidth([control frame]) + 0.5)
        << toText([control stringValue]);
  }
}

TEST_P(WindowLayout, ClipsNoChoiceOfItsPopUps) {
  for (NSPopUpButton *const popUp : placedOf<NSPopUpButton>([NSPopUpButton class]))
    for (NSInteger i = 0; i < [popUp numberOfItems]; i++) {
      const std::string title = toText([popUp itemTitleAtIndex:i]);
      EXPECT_LE(widthOf(title, [popUp font]) + kArrowsOfPopUp, NSWidth([popUp frame])) << title;
    }
}

TEST_P(WindowLayout, HasRoomForLaterItemsOfItsPopUps) {
  NSPopUpButton *const presets = placedOf<NSPopUpButton>([NSPopUpButton class]).at(1);
  for (const Text &title : {messages::kSavePreset, messages::kRenamePreset, messages::kDeletePreset,
                            messages::kNotOffered})
    EXPECT_LE(widthOf(title.str(), [presets font]) + kArrowsOfPopUp, NSWidth([presets frame]))
        << title.str();
}

TEST_P(WindowLayout, OverlapsNoViews) {
  for (NSUInteger i = 0; i < [placed() count]; i++) {
    NSView *const one = [placed() objectAtIndex:i];
    EXPECT_TRUE(NSContainsRect([[one superview] bounds], [one frame])) << toText([one description]);
    for (NSUInteger j = i + 1; j < [placed() count]; j++) {
      NSView *const other = [placed() objectAtIndex:j];
      EXPECT_FALSE([one superview] == [other superview] &&
                   NSIntersectsRect([one frame], [other frame]))
          << toText([one description]) << " " << toText([other description]);
    }
  }
}

TEST_P(WindowLayout, HasRoomForTheTextOfThePicture) {
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
  for (const std::string &words :
       {messages::kPreviewMovesTogether.str(), messages::previewMoves(arrowText({{-99}, {-99}})),
        messages::kPreviewUprightSheet.str()})
    EXPECT_LE(widthOf(words, previewFont()), layout.relation.width) << words;
}

TEST_P(WindowLayout, FollowsTheSizeOfItsWindow) {
  for (const NSSize size : {NSMakeSize(520, 370), NSMakeSize(900, 500), NSMakeSize(1800, 1100)}) {
    [[dialog_ window] setContentSize:size];
    [dialog_ windowDidResize:nil];
    for (NSUInteger i = 0; i < [placed() count]; i++) {
      NSView *const view = [placed() objectAtIndex:i];
      EXPECT_TRUE(NSContainsRect([[view superview] bounds], [view frame]))
          << toText([view description]) << " at " << size.width;
    }
  }
}

TEST_P(WindowLayout, FitsTheScreen) {
  const NSSize size = [[[dialog_ window] contentView] frame].size;
  EXPECT_LE(size.width, GetParam().width);
  EXPECT_LE(size.height, GetParam().height);
}

TEST_P(WindowLayout, KeepsMuchOfAPanelVisible) {
  EXPECT_GE(NSHeight([placedOf<PaneArea>([PaneArea class]).at(0) frame]), 160);
}

TEST_P(WindowLayout, ScrollsAPaneThatIsHigherThanItsAreaToTheControlWithTheFocus) {
  PaneArea *const area = placedOf<PaneArea>([PaneArea class]).at(0);
  NSView *const pane = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 500, 800)] autorelease];
  NSTextField *const lowest =
      [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 10, 80, 22)] autorelease];
  NSTextField *const highest =
      [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 768, 80, 22)] autorelease];
  [pane addSubview:lowest];
  [pane addSubview:highest];
  for (int twice = 0; twice < 2; twice++) {
    [area showPane:pane];
    EXPECT_EQ([[area subviews] count], 1u);
    [[dialog_ window] makeFirstResponder:highest];
    EXPECT_TRUE(NSContainsRect([pane visibleRect], [highest frame]));
    EXPECT_FALSE(NSIntersectsRect([pane visibleRect], [lowest frame]));
    [[dialog_ window] makeFirstResponder:lowest];
    EXPECT_TRUE(NSContainsRect([pane visibleRect], [lowest frame]));
  }
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Wide, WindowLayout, testing::Values(kWide));
INSTANTIATE_TEST_SUITE_P(LargeText, WindowLayout, testing::Values(kLargeTextOnSmallScreen));
INSTANTIATE_TEST_SUITE_P(SmallScreen, WindowLayout, testing::Values(kSmallScreen));
INSTANTIATE_TEST_SUITE_P(OldScreen, WindowLayout, testing::Values(kLargeTextOnOldScreen));
