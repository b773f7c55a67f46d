#import "PrintDialog.h"

#import "ConflictQuestion.h"
#include "ExitCode.hpp"
#include "HelpTexts.hpp"
#include "ImageShiftText.hpp"
#include "JobSettings.hpp"
#import "JoinParent.h"
#import "MnemonicControls.h"
#include "NumberNotes.hpp"
#include "NumberText.hpp"
#import "OpenPrinter.h"
#include "PasteboardTrouble.hpp"
#include "Phrases.hpp"
#import "Pool.h"
#include "QuestionTexts.hpp"
#import "RunLoopWake.h"
#include "ShownMessage.hpp"
#import "StartMessage.h"
#import "TextBridge.h"
#import "WindowFocus.h"
#include "WindowTexts.hpp"

#include <ostream>
#include <utility>

using namespace imageposition;

@interface PrintDialog ()
- (void)buildParts;
- (void)buildWindowForPane:(NSSize)pane room:(NSSize)room;
- (void)refreshPicture;
- (NSView *)firstControl;
- (void)dropOutdatedOrigin;
- (void)keepFocus;
- (void)look;
- (void)lookAtFile;
- (void)sayTroubles;
- (void)show;
- (void)takeFocus:(NSNumber *)hadWindow;
@end

namespace {

constexpr NSTimeInterval kFocusDelays[] = {0.2, 1}; // seconds

/// Redraws the picture whenever the job's settings change, in the middle of an event, too.
struct PictureRedrawing final : PrintSettingsStore::Observer {
  void settingsChanged() override { [dialog refreshPicture]; }
  PrintDialog *dialog = nil;
};

} // namespace

struct imageposition::PrintDialogState {
  PrintSession *session;
  std::ostream *errors;
  PictureRedrawing redrawing;
  std::unique_ptr<RunLoopWake> wake;
  std::unique_ptr<DialogLayout> layout;
  ShownMessage shown;
  NumberNotes numbers;
  ConflictQuestion conflicts;
};

@implementation PrintDialog

- (id)initWithSession:(PrintSession *)theSession
               errors:(std::ostream *)theErrors
                 pane:(NSSize)pane
                 room:(NSSize)room {
  if ((self = [super init]) == nil)
    return nil;
  PrintDialog *const dialog = self;
  state = new PrintDialogState{theSession, theErrors, {}, nullptr, nullptr, {}, {}, {}};
  state->wake = std::make_unique<RunLoopWake>([=] { [dialog look]; });
  [self buildParts];
  [self buildWindowForPane:pane room:room];
  [printers refresh];
  [presets list];
  [panes list];
  state->redrawing.dialog = self;
  theSession->job().settings().setObserver(&state->redrawing);
  return self;
}

- (void)dealloc {
  [NSObject cancelPreviousPerformRequestsWithTarget:self];
  state->session->job().settings().setObserver(nullptr);
  [printers stopAsking];
  [window setDelegate:nil];
  [window close];
  for (id part : {(id)printers, (id)documents, (id)presets, (id)copies, (id)pages, (id)options,
                  (id)more, (id)panes, (id)aligning, (id)sheets, (id)pictureArea, (id)sending,
                  (id)message, (id)picture, (id)help, (id)window})
    [part release];
  delete state;
  [super dealloc];
}

- (void)buildParts {
  message = [[MessageView alloc] initWithFrame:NSZeroRect];
  picture = [[PreviewView alloc] initWithFrame:NSZeroRect];
  aligning = [[Aligning alloc] initWithDialog:self];
  sheets = [[Sheets alloc] initWithDialog:self picture:picture wake:*state->wake];
  pictureArea = [[PictureArea alloc] initWithPicture:picture
                                              sheets:[sheets bar]
                                             enlarge:[sheets enlargeButton]
                                              button:[aligning button]];
  [aligning setArea:pictureArea];
  printers = [[PrinterRow alloc] initWithDialog:self wake:*state->wake];
  documents = [[DocumentRow alloc] initWithDialog:self wake:*state->wake];
  presets = [[PresetRow alloc] initWithDialog:self];
  copies = [[CopiesRow alloc] initWithDialog:self];
  pages = [[PagesRow alloc] initWithDialog:self];
  options = [[PrinterOptionRows alloc] initWithDialog:self];
  more = [[JobSettingRows alloc] initWithDialog:self];
  panes = [[Panes alloc] initWithDialog:self optionsOwner:options moreOwner:more];
}

- (void)buildWindowForPane:(NSSize)pane room:(NSSize)room {
  NSButton *const helpButton = makeButton(messages::kHelpButton, self, @selector(help));
  NSButton *const cancel = makeButton(messages::kCancel, self, @selector(dismiss));
  NSButton *const print = makeButton(messages::kPrint, self, @selector(confirm));
  sending = [[Sending alloc] initWithDialog:self
                               cancelButton:cancel
                                       wake:*state->wake
                                     errors:state->errors];
  std::vector<DialogRow> rows = [printers rows];
  for (const std::vector<DialogRow> &part :
       {std::vector<DialogRow>{[documents row], [presets row]}, [copies rows], [pages rows]})
    rows.insert(rows.end(), part.begin(), part.end());
  for (DialogRow &row : [options rows])
    rows.push_back(std::move(row));
  rows.push_back([panes row]);
  NSButton *const resolve = [options resolveButton];
  state->layout = std::make_unique<DialogLayout>(
      DialogContent{rows, pictureArea, [sheets bar], [sheets enlargeButton], [aligning button],
                    [panes area], [options hint], resolve, message, [sending progressView],
                    helpButton, cancel, print},
      pane, room);
  window = state->layout->window();
  [window setDelegate:(id)self];
  [window reach:[sheets enlargeButton] by:messages::kEnlarge];
  [window reach:[aligning button] by:messages::kAlign];
  [window reach:resolve by:messages::kResolve];
  [window reach:helpButton by:messages::kHelpButton];
  [window reach:cancel by:messages::kCancel];
  [window reach:print by:messages::kPrint];
  [panes linkBefore:[[sheets bar] previousButton]];
  [documents refresh];
}

/// Adapts to the window's size, or to a message, a hint or a panel that has come or gone. Without
/// a panel, nothing can be shifted, so there is no picture.
- (void)layOut {
  [pictureArea setHidden:state->session->panels().panels().empty()];
  state->layout->layOut();
  [pictureArea layOut];
  [documents refresh];
  [printers showState];
}

- (void)windowDidResize:(NSNotification *)notification {
  (void)notification;
  PrintDialog *const dialog = self;
  [window protect:[=] {
    [dialog layOut];
    [dialog->panes areaResized];
    [dialog->sheets jobChanged];
  }];
}

/// The user may have saved the document again in another window. Looks after the current event, as
/// the end of a question makes the window key in the middle of one.
- (void)windowDidBecomeKey:(NSNotification *)notification {
  (void)notification;
  const SEL look = @selector(lookAtFile);
  [NSObject cancelPreviousPerformRequestsWithTarget:self selector:look object:nil];
  [self performSelector:look
             withObject:nil
             afterDelay:0
                inModes:[NSArray
                            arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode, nil]];
}

- (void)lookAtFile {
  if ([NSApp modalWindow] != window || [sending isUnderWay])
    return;
  DocumentRow *const documentRow = documents;
  Sheets *const shownSheets = sheets;
  [window protect:[=] {
    [documentRow lookAtFile];
    [shownSheets jobChanged];
  }];
}

- (KeyWindow *)window {
  return window;
}

- (PrintSession &)session {
  return *state->session;
}

- (void)show:(const std::string &)text {
  state->shown.set(text, state->session->job().alignment().note());
  [message setStringValue:toString(text)];
  [self layOut];
  [window keepFocusInSight];
}

- (void)say:(const std::string &)text {
  [self show:text];
  [self write:text];
}

- (void)write:(const std::string &)text {
  if (!text.empty())
    *state->errors << text << std::endl;
}

- (int)documentPages {
  return [documents pages];
}

- (BOOL)hasPagesOfOneSize {
  return [documents hasPagesOfOneSize];
}

- (BOOL)isDocumentExamined {
  return [documents isExamined];
}

- (BOOL)savePanels {
  return [panes save];
}

- (BOOL)takeEntries {
  return [copies takeEntry] && [pages takeEntry] && [panes saveAll];
}

- (void)chooseQueue:(const std::string &)queue {
  if (![self savePanels])
    return;
  try {
    auto opened =
        PrinterOpening(queue, missingShift(state->session->job().arguments())).await(window);
    if (!opened)
      return;
    const NumbersNow numbers = state->session->takePrinter(std::move(*opened));
    const std::string troubles = state->session->panels().troubleText();
    state->layout->takePane(largestPane(state->session->panels()));
    [self say:troubles];
    const std::string note = numbers == NumbersNow::Measured
                                 ? state->session->job().alignment().note()
                                 : messages::numbersNow(numbers, queue);
    if (!note.empty())
      [self show:messages::sentences({troubles, note})];
  } catch (const Failure &failure) {
    [self say:failure.what()];
  }
  [presets printerChanged];
  [panes list];
  [self refresh];
}

- (void)refresh {
  [printers refresh];
  [copies refresh];
  [pages refresh];
  [self refreshOptions];
}

- (void)refreshOptions {
  [options refresh];
  [pages refreshNote];
  [aligning refresh];
  [self layOut];
  [panes refresh];
  [self refreshPicture];
  [self dropOutdatedOrigin];
  [self keepFocus];
}

/// Called at every change of a setting, and of what is known of the document.
- (void)refreshPicture {
  PrintJob &job = state->session->job();
  Sheets *const shownSheets = sheets;
  DocumentRow *const documentRow = documents;
  [window protect:[&] { // it may be a panel that has changed the setting
    PreviewRequest request = readPreviewRequest(job.settings(), job.printer().ppd());
    request.hasLandscapePages = isImageShiftAdded(job.printer().ppd()) &&
                                hasLandscapePages(job.settings(), [documentRow isLandscape]);
    [shownSheets showPreview:makePreview(request)];
    [shownSheets jobChanged];
  }];
}

- (NSView *)firstControl {
  NSView *const first = [panes firstControl];
  return first != nil ? first : [[window defaultButtonCell] controlView];
}

/// The view that had the focus may have gone with its pane.
- (void)keepFocus {
  if ([window focusedView] == nil)
    [window makeFirstResponder:[self firstControl]];
}

- (void)confirm {
  if ([sending isUnderWay])
    return;
  NSView *const focused = [window focusedView];
  state->numbers.forgetChange();
  [window makeFirstResponder:nil];
  if (state->numbers.isChanged()) { // the user should see what would be printed
    [window makeFirstResponder:focused];
    return;
  }
  if ([copies takeEntry] && [pages takeEntry] && [panes allowPrinting] &&
      state->conflicts.isAccepted(window, [options conflict]))
    [sending startWithFocus:focused];
}

- (void)dismiss {
  if ([sending isUnderWay])
    [sending cancel];
  else
    [NSApp stopModalWithCode:NSCancelButton];
}

- (void)turnPages:(int)direction {
  [sheets turnBy:direction];
}

- (void)help {
  if ([sending isUnderWay]) // only Cancel can be used
    return;
  if (help == nil)
    help = [[HelpWindow alloc] init];
  [help showBeside:window];
}

- (void)wake {
  [documents showQuestion];
  [options askForChosenValue];
  [more askForChosenValueOver:window];
  [sending askForPassword];
  [sending askToPrintUnmoved];
}

/// Another thread has found something.
- (void)look {
  PrinterRow *const printerRow = printers;
  DocumentRow *const documentRow = documents;
  Sending *const sender = sending;
  Panes *const paneArea = panes;
  Sheets *const shownSheets = sheets;
  [window protect:[=] {
    [sender look];
    [shownSheets look];
    [documentRow refresh];
    if ([printerRow takeAnswer])
      [paneArea printersListed];
  }];
  [pages refreshNote]; // a document may have been examined
  [self refreshPicture];
  [self lookAtFile]; // it may have been saved again meanwhile
}

- (void)userActedOn:(NSView *)view {
  if ([sending isUnderWay])
    return;
  [panes userActedOn:view];
  [self dropOutdatedOrigin];
}

/// The offsets may no longer be those of which the message says where they come from.
- (void)dropOutdatedOrigin {
  const std::string origin = state->shown.origin();
  if (!origin.empty() && state->session->job().alignment().note() != origin)
    [self show:state->shown.textBeforeOrigin()];
}

- (BOOL)takesNumbers:(NSTextField *)field {
  return [panes isPanels:field];
}

- (void)number:(NSTextField *)field wasEdited:(const NumberEdit &)edit {
  const bool isEnd = edit.kind == NumberEdit::Kind::Ended;
  if (!isEnd && isWholeNumber(edit.shown))
    [panes takeNumber:field keepingIt:edit.kind == NumberEdit::Kind::Typed];
  const bool isOffset = ![pictureArea isHidden]; // there is a picture only beside offsets
  const auto note =
      state->numbers.edited(edit.typed, edit.shown, isEnd, isOffset, state->shown.text());
  if (note && state->numbers.isChanged())
    [self say:*note];
  else if (note)
    [self show:*note];
  [self dropOutdatedOrigin];
}

- (BOOL)takesFiles {
  return ![sending isUnderWay] && [NSApp modalWindow] == window &&
         !state->session->job().isPreparing();
}

- (void)takeFiles:(const std::vector<std::string> &)paths {
  [documents take:paths];
}

- (BOOL)windowShouldClose:(id)sender {
  (void)sender;
  [self dismiss];
  return NO;
}

- (void)exception:(NSString *)what in:(NSView *)view {
  if (![panes leaveOutPanelOf:view because:toText(what)])
    [self say:messages::dialogFailed(toText(what))];
}

- (void)pasteboardFailed:(NSString *)what {
  [self say:pasteboardTrouble(toText(what))];
}

/// Only the troubles go to standard error, which has what became of the preset already.
- (void)sayTroubles {
  const std::string troubles = startTroubles(*state->session);
  if (!troubles.empty())
    [self say:troubles];
  const std::string notes = startNotes(state->session->job());
  if (!notes.empty())
    [self show:messages::sentences({troubles, notes})];
}

- (void)show {
  const Pool pool;
  [printers startAsking];
  [self sayTroubles];
  [self refresh];
  [window center];
  [window setInitialFirstResponder:[self firstControl]];
  [window makeFirstResponder:[self firstControl]];
  const bool hadWindow = activateApplication();
  [window makeKeyAndOrderFront:nil];
  for (const NSTimeInterval delay : kFocusDelays)
    [self performSelector:@selector(takeFocus:)
               withObject:[NSNumber numberWithBool:hadWindow]
               afterDelay:delay
                  inModes:[NSArray arrayWithObject:NSModalPanelRunLoopMode]];
  joinParent(window, state->session->job().arguments());
}

/// After the window that waited for the printer, and before this one, the program had no window,
/// and may have lost the focus.
- (void)takeFocus:(NSNumber *)hadWindow {
  if ([NSApp modalWindow] != window)
    return;
  if ([hadWindow boolValue] && ![NSApp isActive]) {
    activateApplication();
    [window makeKeyAndOrderFront:nil];
  }
  askForFocus(window);
}

- (BOOL)run {
  [self show];
  const NSInteger answer = [NSApp runModalForWindow:window];
  [help hide];
  const BOOL isKept = [sending keepWaitingJob]; // desktops hide standard error
  [window orderOut:nil];
  return answer == NSOKButton && isKept;
}

@end
