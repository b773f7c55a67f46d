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
#include <vector>

using namespace imageposition;

namespace {

struct TurnedSheets {
  SheetImages &images; // GNU's Objective-C cannot encode its members
};

} // namespace

@interface SheetPanelController : NSObject <SheetTurning> {
@public
  const TurnedSheets *sheets; ///< Borrowed.
  SheetView *view;     ///< Not owned; so below.
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
  [view showPlace:static_cast<PreviewLayout::Place>([sender indexOfSelectedItem])];
}

- (void)refresh {
  [view refresh];
  [bar refresh];
}

@end

namespace imageposition {

namespace {

constexpr CGFloat kWidthOfPlaces = 180;

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
  const CGFloat bottom = panel.bottom() - kPanelMargin / 2;
  SheetView *const view =
      [[[SheetView alloc] initWithFrame:NSMakeRect(0, bottom, size.width, size.height - bottom)
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
  [places setFrameOrigin:NSMakePoint(kPanelMargin, kPanelMargin)];
  const CGFloat left = NSMaxX([places frame]) + kPanelMargin;
  const CGFloat right = NSMinX([panel.confirmButton() frame]) - kPanelMargin;
  [bar setFrame:NSMakeRect(left, kPanelMargin, std::max<CGFloat>(right - left, 0), kButtonHeight)];
  for (NSView *part : {(NSView *)view, (NSView *)places, (NSView *)bar})
    panel.add(part);
  [view showPlace:static_cast<PreviewLayout::Place>([places indexOfSelectedItem])];
  controller_ = controller;
  images_.setScale([view pixelsPerPoint]);
  [controller refresh];
  panel.run(parent, {view, places, [bar previousButton], [bar nextButton]});
  controller_ = nil;
  [places setTarget:nil];
  [controller release];
}

} // namespace imageposition
