#import "SheetPanel.h"

#include "HelpTexts.hpp"
#import "Labels.h"
#import "ListPopUp.h"
#import "MnemonicControls.h"
#import "ModalPanel.h"
#include "PictureTexts.hpp"
#include "QuestionTexts.hpp"
#import "SheetView.h"
#import "TextBridge.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace imageposition;

namespace {

struct TurnedSheets {
  SheetImages &images; // GNU's Objective-C cannot encode its members
};

SheetImages::Needed neededAt(PreviewLayout::Place place) {
  return place == PreviewLayout::Front  ? SheetImages::Needed::Front
         : place == PreviewLayout::Back ? SheetImages::Needed::Back
                                        : SheetImages::Needed::BothSides;
}

} // namespace

@interface SheetPanelController : NSObject <SheetTurning> {
@public
  const TurnedSheets *sheets; ///< Borrowed.
  SheetView *view;            ///< Not owned; so below.
  SheetBar *bar;
  NSPopUpButton *places;
}
- (void)placeChosen:(id)sender;
- (void)refresh;
@end

@implementation SheetPanelController

- (void)turnTo:(int)sheet {
  sheets->images.turnTo(sheet);
  [self refresh];
}

- (void)placeChosen:(id)sender {
  const auto place = static_cast<PreviewLayout::Place>([sender indexOfSelectedItem]);
  [view showPlace:place];
  sheets->images.setScale([view pixelsPerPoint], neededAt(place));
  [self refresh];
}

- (void)refresh {
  [view refresh];
  [bar refresh];
}

@end

namespace imageposition {

namespace {

constexpr CGFloat kWidthOfPlaces = 180;
constexpr CGFloat kLeastWidthOfBar = 160; // both arrows and a short text

/// What is below the sheet: a row with all controls or, in a narrow window, the bar above the rest.
struct LowerRows {
  NSRect bar;
  CGFloat widthOfPlaces;
  CGFloat top; ///< Of the upper row.
};

/// `right` is where the button that closes begins.
LowerRows lowerRows(CGFloat width, CGFloat right) {
  const CGFloat left = 2 * kPanelMargin + kWidthOfPlaces, room = right - kPanelMargin - left;
  if (room >= kLeastWidthOfBar)
    return {NSMakeRect(left, kPanelMargin, room, kButtonHeight), kWidthOfPlaces,
            kPanelMargin + kButtonHeight};
  const CGFloat bottom = 1.5 * kPanelMargin + kButtonHeight;
  return {NSMakeRect(kPanelMargin, bottom, std::max<CGFloat>(width - 2 * kPanelMargin, 0),
                     kButtonHeight),
          std::clamp<CGFloat>(right - 2 * kPanelMargin, 0, kWidthOfPlaces), bottom + kButtonHeight};
}

NSPopUpButton *makePlaces(const Preview &preview, PreviewLayout::Place place, id target) {
  ListPopUp *const places =
      [[[ListPopUp alloc] initWithFrame:NSMakeRect(0, 0, kWidthOfPlaces, kButtonHeight)
                              pullsDown:NO] autorelease];
  [places addItemWithTitle:toString(messages::kPreviewFront)];
  if (preview.back) {
    [places addItemWithTitle:toString(messages::kPreviewBack)];
    [places addItemWithTitle:toString(messages::kPreviewAgainstLight)];
  }
  [places selectItemAtIndex:preview.back ? static_cast<NSInteger>(place) : 0];
  [places setTarget:target];
  [places setAction:@selector(placeChosen:)];
  return places;
}

} // namespace

SheetPanel::SheetPanel(SheetImages &images, const Preview &preview)
    : images_(images), preview_(preview) {}

void SheetPanel::refresh() { [controller_ refresh]; }

void SheetPanel::show(NSWindow *parent, PreviewLayout::Place place) {
  const NSSize size = [[parent contentView] frame].size;
  const CGFloat controls = kButtonHeight + 3 * kPanelMargin;
  ModalPanel panel(messages::kSheetWindow, size.width, size.height - controls, messages::kClose);
  SheetPanelController *const controller = [[SheetPanelController alloc] init];
  const LowerRows rows = lowerRows(size.width, NSMinX([panel.confirmButton() frame]));
  const CGFloat bottom = std::round(rows.top + kPanelMargin / 2);
  SheetView *const view = [[[SheetView alloc]
      initWithFrame:NSMakeRect(0, bottom, size.width, std::max<CGFloat>(size.height - bottom, 0))
             images:images_
            preview:preview_
             target:controller] autorelease];
  NSPopUpButton *const places = makePlaces(preview_, place, controller);
  SheetBar *const bar = [[[SheetBar alloc] initWithImages:images_ target:controller] autorelease];
  const TurnedSheets turned{images_};
  controller->sheets = &turned;
  controller->view = view;
  controller->bar = bar;
  controller->places = places;
  [places setFrame:NSMakeRect(kPanelMargin, kPanelMargin, rows.widthOfPlaces, kButtonHeight)];
  [bar setFrame:rows.bar];
  for (NSView *part : {(NSView *)view, (NSView *)places, (NSView *)bar})
    panel.add(part);
  controller_ = controller;
  [controller placeChosen:places];
  panel.run(parent, {view, places, [bar previousButton], [bar nextButton]});
  controller_ = nil;
  [places setTarget:nil];
  [controller release];
}

} // namespace imageposition
