#import "Sheets.h"

#import "MnemonicControls.h"
#import "RunLoopWake.h"
#import "SheetPanel.h"
#import "SheetPictures.h"
#include "ShownJob.hpp"
#include "WindowTexts.hpp"

#include <memory>
#include <optional>
#include <utility>

using namespace imageposition;

struct imageposition::SheetsState {
  std::unique_ptr<SheetImages> images; // GNU's Objective-C cannot encode its members
  Preview preview = {};
  std::unique_ptr<SheetPanel> panel = nullptr; // while a sheet is enlarged
};

@interface Sheets () <SheetTurning, PreviewViewTarget>
- (void)showJob;
- (void)waitForExamination;
- (BOOL)isLocked;
- (void)refresh;
- (void)enlarge:(id)sender;
- (void)enlargePlace:(PreviewLayout::Place)place;
@end

@implementation Sheets

- (id)initWithDialog:(id<DialogServices>)theDialog
             picture:(PreviewView *)thePicture
                wake:(const RunLoopWake &)wake {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  picture = [thePicture retain];
  state = new SheetsState{std::make_unique<SheetImages>(wake.signal())};
  bar = [[SheetBar alloc] initWithImages:*state->images target:self];
  enlargeButton = [makeButton(messages::kEnlarge, self, @selector(enlarge:)) retain];
  [picture setTarget:self];
  [bar refresh];
  // Its place is kept while the document is examined: the picture should not change its size.
  [bar setHidden:[dialog session].job().documents().empty()];
  [enlargeButton setHidden:YES];
  return self;
}

- (void)dealloc {
  [NSObject cancelPreviousPerformRequestsWithTarget:self];
  [picture setTarget:nil];
  [enlargeButton setTarget:nil];
  for (id part : {(id)picture, (id)bar, (id)enlargeButton})
    [part release];
  delete state;
  [super dealloc];
}

- (SheetBar *)bar {
  return bar;
}

- (NSButton *)enlargeButton {
  return enlargeButton;
}

- (void)showPreview:(const Preview &)preview {
  state->preview = preview;
  [picture showPreview:preview];
}

- (void)jobChanged {
  [NSObject cancelPreviousPerformRequestsWithTarget:self selector:@selector(showJob) object:nil];
  [self performSelector:@selector(showJob)
             withObject:nil
             afterDelay:0
                inModes:[NSArray
                            arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode, nil]];
}

- (void)showJob {
  if (![[picture window] isVisible])
    return;
  if (![dialog isDocumentExamined]) {
    [self waitForExamination];
    return;
  }
  PrintSession &session = [dialog session];
  const DestinationList &printers = session.destinations().list();
  if (printers.destinations.empty() && printers.reason.empty())
    return; // the queue's defaults, which change the layout, are about to arrive
  std::optional<ShownDocument> document;
  if (![picture isHiddenOrHasHiddenAncestor])
    document = documentToShow(session.job(), printers,
                              [dialog hasPagesOfOneSize] ? [dialog documentPages] : 0);
  if (state->panel == nullptr)
    state->images->setScale([picture pixelsPerPoint]);
  state->images->show(std::move(document));
  [self refresh];
}

/// Another document must not be shown meanwhile.
- (void)waitForExamination {
  const std::vector<std::string> &paths = [dialog session].job().documents();
  if (paths.empty() || paths.front() == state->images->path())
    return;
  state->images->show(std::nullopt);
  [self refresh];
}

- (void)look {
  if (state->images->take())
    [self refresh];
}

/// All controls are disabled while a document is sent, and stay so whatever is fetched meanwhile.
- (BOOL)isLocked {
  return ![enlargeButton isEnabled];
}

- (void)refresh {
  const bool hasSheets = state->images->order().sheets() > 0;
  const bool isShown =
      state->images->state() != SheetImages::State::None || ![dialog isDocumentExamined];
  const bool isNew = isShown == [bar isHidden] || hasSheets == [enlargeButton isHidden];
  [picture showSheet:sheetSides(*state->images) named:sheetText(*state->images)];
  [bar setHidden:!isShown];
  [enlargeButton setHidden:!hasSheets];
  if (![self isLocked])
    [bar refresh];
  if (isNew)
    [dialog layOut];
  if (state->panel != nullptr)
    state->panel->refresh();
}

- (void)turnTo:(int)sheet {
  state->images->turnTo(sheet);
  [self refresh];
}

- (void)turnBy:(int)sheets {
  if (![self isLocked])
    [self turnTo:state->images->sheet() + sheets];
}

- (void)pageClicked:(PreviewLayout::Place)place {
  if (![self isLocked])
    [self enlargePlace:place];
}

- (void)enlarge:(id)sender {
  (void)sender;
  [self enlargePlace:PreviewLayout::Front];
}

- (void)enlargePlace:(PreviewLayout::Place)place {
  if (state->images->order().sheets() == 0 || state->panel != nullptr)
    return;
  NSWindow *const window = [picture window];
  state->panel = std::make_unique<SheetPanel>(*state->images, state->preview);
  state->panel->show(window, place);
  state->panel.reset();
  state->images->setScale([picture pixelsPerPoint]);
  [self refresh];
}

@end
