#import "DialogWindow.h"

#import "DialogController.h"
#import "DialogState.h"
#include "DocumentNames.hpp"
#import "HelpPanel.h"
#import "NotePanel.h"
#include "PasteboardTrouble.hpp"
#include "PluginTexts.hpp"
#import "Pool.h"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>
#include <ostream>

using namespace imageposition;

namespace {

constexpr NSSize kSmallestPane = {470, 220};

NSSize paneSize(PanelSession &session) {
  NSSize size = kSmallestPane;
  for (const auto &panel : session.panels()) {
    if (!panel->hasView())
      continue;
    const NSSize wanted = [panel->view() frame].size;
    size.width = std::max(size.width, wanted.width);
    size.height = std::max(size.height, wanted.height);
  }
  return size;
}

} // namespace

void imageposition::PictureRedrawing::settingsChanged() { [controller refreshPicture]; }

@interface DialogController ()
- (void)buildWindow;
- (void)sayTroubles;
@end

@implementation DialogController

- (id)initWithSession:(PrintSession *)theSession errors:(std::ostream *)theErrors {
  if ((self = [super init]) == nil)
    return nil;
  session = theSession;
  errors = theErrors;
  state = new DialogState;
  const std::size_t slash = session->job().queue().find('/');
  if (slash != std::string::npos)
    state->preset = session->job().queue().substr(slash + 1);
  [self buildWindow];
  [self listPrinters];
  [self listPresets];
  [self listPanes];
  state->redrawing.controller = self;
  session->job().settings().setObserver(&state->redrawing);
  return self;
}

- (void)dealloc {
  session->job().settings().setObserver(nullptr);
  [self stopAskingForPrinters];
  [views.window setDelegate:nil];
  [views.window close];
  [views.window release];
  [summary release];
  [options release];
  delete state;
  [super dealloc];
}

- (void)buildWindow {
  const NSSize pane = paneSize(session->panels());
  const DialogActions actions {
    self, @selector(printerChosen:), @selector(presetChosen:), @selector(copiesChanged:),
        @selector(copiesStepped:), @selector(collateChanged:), @selector(pagesChosen:),
        @selector(rangesChanged:), @selector(twoSidedChosen:), @selector(mediaChosen:),
        @selector(paneChosen:), @selector(resolveConflicts:), @selector(help), @selector(dismiss),
        @selector(confirm)
  };
  views = buildDialog(pane, roomOnScreen(), documentsInWords(session->job().documents()), actions);
  [views.window setDelegate:(id)self];
  const NSRect frame = [views.paneArea bounds];
  summary = [[SummaryView alloc] initWithFrame:frame];
  options = [[OptionsView alloc] initWithFrame:frame owner:(id)self];
}

- (void)say:(const std::string &)text {
  [views.message setStringValue:toString(text)];
  if (!text.empty())
    *errors << text << std::endl;
}

- (void)refresh {
  [self refreshOptions];
  [self refreshCopies];
  [self refreshPages];
  [self refreshPicture];
}

- (void)takeFocus:(NSView *)sender {
  if ([views.window firstResponder] != sender)
    [views.window makeFirstResponder:sender];
}

- (void)confirm {
  if ([self isSending])
    return;
  state->focusBefore = [views.window focusedView];
  [views.window makeFirstResponder:nil];
  if (![self takeEntries] || ![self panelsAllowPrinting])
    return;
  [self startSending];
}

- (void)dismiss {
  if ([self isSending])
    [self cancelSending];
  else
    [NSApp stopModalWithCode:NSCancelButton];
}

- (void)help {
  if ([self isSending])
    return; // what ends with the job would be the help's window
  showHelp(views.window);
}

- (BOOL)windowShouldClose:(id)sender {
  (void)sender;
  [self dismiss];
  return NO;
}

- (void)eventRaised:(NSString *)what {
  if (shownPanel != nullptr)
    [self leaveOut:shownPanel
           because:messages::pluginRaised(shownPanel->pluginPath(), "event", toText(what))];
  else
    [self say:toText(what)];
}

- (void)pasteboardRaised:(NSString *)what {
  [self say:pasteboardTrouble(toText(what))];
}

- (void)sayTroubles {
  std::string troubles;
  for (const std::string &trouble : session->panels().troubles())
    troubles += (troubles.empty() ? "" : "\n") + trouble;
  if (troubles.empty() && session->panels().panels().empty())
    troubles = messages::kNoPanelHere;
  if (!troubles.empty())
    [self say:troubles];
}

- (void)show {
  const Pool pool;
  [self sayTroubles];
  [self refresh];
  [self showChosenPane];
  [views.window center];
  [views.window setInitialFirstResponder:[self firstControl]];
  [views.window makeFirstResponder:[self firstControl]];
  [NSApp finishLaunching]; // no keys arrive before
  [NSApp activateIgnoringOtherApps:YES];
  [views.window makeKeyAndOrderFront:nil];
  [self startAskingForPrinters];
}

- (BOOL)run {
  [self show];
  const NSInteger answer = [NSApp runModalForWindow:views.window];
  if (!state->note.empty()) // a desktop shows nobody what goes to standard error
    showNote(views.window, messages::kJobWaits, state->note);
  [views.window orderOut:nil];
  return answer == NSOKButton;
}

@end

namespace imageposition {

bool runDialog(PrintSession &session, std::ostream &errors) {
  DialogController *controller = nil;
  {
    const Pool pool;
    controller = [[DialogController alloc] initWithSession:&session errors:&errors];
  }
  const bool printed = [controller run];
  [controller release];
  return printed;
}

} // namespace imageposition
