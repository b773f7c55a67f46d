#import "host/DialogWindow.h"

#include "host/ExitCode.hpp"
#import "host/KeyLoop.h"
#import "host/KeyWindow.h"
#import "host/Labels.h"
#include "host/Messages.hpp"
#import "host/SummaryView.h"
#import "platform/TextBridge.h"

#include <algorithm>
#include <ostream>

using namespace imageposition;

namespace {

constexpr CGFloat kMargin = 20;
constexpr CGFloat kGap = 10;
constexpr CGFloat kRowHeight = 24;
constexpr CGFloat kButtonWidth = 92;
constexpr CGFloat kMessageHeight = 48;
constexpr NSSize kSmallestPane = {460, 220};

NSSize paneSize(const PanelSession &session) {
  NSSize size = kSmallestPane;
  for (const auto &panel : session.panels()) {
    const NSSize wanted = [panel->view() frame].size;
    size.width = std::max(size.width, wanted.width);
    size.height = std::max(size.height, wanted.height);
  }
  return size;
}

NSButton *makeButton(const char *title, id target, SEL action) {
  NSButton *const button =
      [[[NSButton alloc] initWithFrame:NSMakeRect(0, 0, kButtonWidth, kRowHeight)] autorelease];
  [button setTitle:toString(title)];
  [button setBezelStyle:NSRoundedBezelStyle];
  [button setTarget:target];
  [button setAction:action];
  return button;
}

} // namespace

/// Owns the window; borrows the panels.
@interface DialogController : NSObject <KeyWindowDelegate> {
  PanelSession *session;
  std::ostream *errors;
  PanelDriver *shownPanel; ///< Null while the summary is shown.
  KeyWindow *window;       ///< Owned, as the views below.
  NSPopUpButton *panes;
  NSView *paneArea;
  SummaryView *summary;
  NSTextField *message;
  NSButton *cancelButton;
  NSButton *printButton;
}

- (id)initWithSession:(PanelSession *)theSession
                texts:(const DialogTexts &)texts
               errors:(std::ostream *)theErrors;
/// True when the person printed.
- (BOOL)run;

- (void)buildWindow:(const DialogTexts &)texts;
- (void)addHeader:(const DialogTexts &)texts below:(CGFloat)top width:(CGFloat)width;
- (void)addButtons:(CGFloat)right;
/// Fills the pop-up after the panels that are left.
- (void)listPanes;
- (void)showChosenPane;
- (void)sayTroubles;
- (NSView *)firstControl;

@end

@implementation DialogController

- (id)initWithSession:(PanelSession *)theSession
                texts:(const DialogTexts &)texts
               errors:(std::ostream *)theErrors {
  if ((self = [super init]) == nil)
    return nil;
  session = theSession;
  errors = theErrors;
  [self buildWindow:texts];
  [self listPanes];
  return self;
}

- (void)dealloc {
  [window setDelegate:nil];
  [window close];
  [window release];
  [panes release];
  [paneArea release];
  [summary release];
  [message release];
  [cancelButton release];
  [printButton release];
  [super dealloc];
}

- (void)buildWindow:(const DialogTexts &)texts {
  const NSSize pane = paneSize(*session);
  const int rows = texts.document.empty() ? 2 : 3;
  const CGFloat header = rows * (kRowHeight + kGap);
  const NSSize size = {pane.width + 2 * kMargin,
                       pane.height + header + kMessageHeight + kRowHeight + 2 * kMargin + 2 * kGap};
  window = [[KeyWindow alloc] initWithContentRect:NSMakeRect(0, 0, size.width, size.height)
                                        styleMask:NSTitledWindowMask | NSClosableWindowMask
                                          backing:NSBackingStoreBuffered
                                            defer:YES];
  [window setReleasedWhenClosed:NO];
  [window setTitle:toString(messages::kWindowTitle)];
  [window setDelegate:(id)self];
  [self addHeader:texts below:size.height - kMargin width:pane.width];
  const CGFloat bottom = kMargin + kRowHeight + kGap;
  message = [makeLabel("") retain];
  [message setFrame:NSMakeRect(kMargin, bottom, pane.width, kMessageHeight)];
  [[message cell] setWraps:YES];
  [[window contentView] addSubview:message];
  paneArea = [[NSView alloc]
      initWithFrame:NSMakeRect(kMargin, bottom + kMessageHeight + kGap, pane.width, pane.height)];
  [[window contentView] addSubview:paneArea];
  summary = [[SummaryView alloc] initWithFrame:NSMakeRect(0, 0, pane.width, pane.height)];
  [self addButtons:size.width - kMargin];
}

- (void)addHeader:(const DialogTexts &)texts below:(CGFloat)top width:(CGFloat)width {
  panes = [[NSPopUpButton alloc] initWithFrame:NSMakeRect(0, 0, 260, kRowHeight) pullsDown:NO];
  [panes setTarget:self];
  [panes setAction:@selector(paneChosen:)];
  std::vector<std::pair<const char *, NSView *>> rows{
      {messages::kPrinterLabel, makeLabel(texts.printer, true)}};
  if (!texts.document.empty())
    rows.push_back({messages::kDocumentLabel, makeLabel(texts.document)});
  rows.push_back({messages::kPaneLabel, panes});
  CGFloat titleWidth = 0;
  std::vector<NSTextField *> titles;
  for (const auto &row : rows) {
    titles.push_back(makeLabel(row.first));
    titleWidth = std::max(titleWidth, NSWidth([titles.back() frame]));
  }
  for (std::size_t i = 0; i < rows.size(); i++) {
    const CGFloat middle = top - i * (kRowHeight + kGap) - kRowHeight / 2;
    NSTextField *const title = titles[i];
    NSView *const value = rows[i].second;
    const CGFloat left = kMargin + titleWidth + kGap;
    [title setFrameOrigin:NSMakePoint(kMargin + titleWidth - NSWidth([title frame]),
                                      middle - NSHeight([title frame]) / 2)];
    const CGFloat valueWidth =
        std::min(NSWidth([value frame]), width + kMargin - left); // a long name is cut, not spilt
    [value setFrame:NSMakeRect(left, middle - NSHeight([value frame]) / 2, valueWidth,
                               NSHeight([value frame]))];
    [[window contentView] addSubview:title];
    [[window contentView] addSubview:value];
  }
}

- (void)addButtons:(CGFloat)right {
  cancelButton = [makeButton(messages::kCancelButton, self, @selector(dismiss)) retain];
  printButton = [makeButton(messages::kPrintButton, self, @selector(confirm)) retain];
  [printButton setFrameOrigin:NSMakePoint(right - kButtonWidth, kMargin)];
  [cancelButton setFrameOrigin:NSMakePoint(right - 2 * kButtonWidth - kGap, kMargin)];
  [[window contentView] addSubview:cancelButton];
  [[window contentView] addSubview:printButton];
  [window setDefaultButtonCell:[printButton cell]];
  [cancelButton setNextKeyView:printButton];
  [printButton setNextKeyView:panes];
}

- (void)listPanes {
  [panes removeAllItems];
  // By hand: adding an item by its title would take away an earlier one of the same title.
  for (const auto &panel : session->panels())
    [[panes menu] addItemWithTitle:toString(panel->name()) action:NULL keyEquivalent:@""];
  [[panes menu] addItemWithTitle:toString(messages::kSummaryPane) action:NULL keyEquivalent:@""];
  [panes selectItemAtIndex:0];
}

/// What is said stays until something else is.
- (void)say:(const std::string &)text {
  [message setStringValue:toString(text)];
  if (!text.empty())
    *errors << text << std::endl;
}

- (void)leaveOut:(PanelDriver *)panel because:(const std::string &)trouble {
  if (panel == shownPanel) {
    [panel->view() removeFromSuperview];
    shownPanel = nullptr;
  }
  session->drop(panel, trouble);
  [self say:trouble];
  [self listPanes];
  [self showChosenPane];
  [window makeFirstResponder:[self firstControl]];
}

- (void)showView:(NSView *)view {
  NSArray *const shown = [NSArray arrayWithArray:[paneArea subviews]];
  for (NSUInteger i = 0; i < [shown count]; i++)
    [[shown objectAtIndex:i] removeFromSuperview];
  const CGFloat left = std::floor((NSWidth([paneArea frame]) - NSWidth([view frame])) / 2);
  const CGFloat bottom = NSHeight([paneArea frame]) - NSHeight([view frame]);
  [view setFrameOrigin:NSMakePoint(left, bottom)];
  [paneArea addSubview:view];
  [paneArea setNeedsDisplay:YES];
  linkPane(view, panes, cancelButton);
}

/// Each panel's own save; one that fails is left out, and false answered.
- (BOOL)savePanels {
  for (const auto &panel : session->panels()) {
    try {
      panel->save();
    } catch (const Failure &failure) {
      [self leaveOut:panel.get() because:failure.what()];
      return NO;
    }
  }
  return YES;
}

- (void)showSummary {
  shownPanel = nullptr;
  std::vector<SummarySection> sections;
  for (const auto &panel : session->panels()) {
    try {
      sections.push_back(panel->summary());
    } catch (const Failure &failure) {
      [self leaveOut:panel.get() because:failure.what()];
      return;
    }
  }
  [summary showSections:sections];
  [self showView:summary];
}

- (void)showPanel:(PanelDriver *)panel {
  shownPanel = panel;
  [self showView:panel->view()];
  try {
    panel->willShow();
  } catch (const Failure &failure) {
    [self leaveOut:panel because:failure.what()];
  }
}

- (void)showChosenPane {
  const auto chosen = static_cast<std::size_t>(std::max<NSInteger>([panes indexOfSelectedItem], 0));
  if (chosen < session->panels().size())
    [self showPanel:session->panels()[chosen].get()];
  else
    [self showSummary];
}

- (void)paneChosen:(id)sender {
  (void)sender;
  [window makeFirstResponder:panes]; // the field that was being edited takes its text
  const NSInteger chosen = [panes indexOfSelectedItem];
  if (![self savePanels])
    return;
  [panes selectItemAtIndex:chosen];
  [self showChosenPane];
}

/// Asks every panel and lets it save; false when one refused or failed.
- (BOOL)panelsAllowPrinting {
  for (const auto &panel : session->panels()) {
    try {
      if (!panel->mayPrint()) {
        [self say:messages::panelRefusedJob(panel->name())];
        return NO;
      }
    } catch (const Failure &failure) {
      [self leaveOut:panel.get() because:failure.what()];
      return NO;
    }
  }
  return [self savePanels];
}

- (void)confirm {
  [window makeFirstResponder:nil];
  if ([self panelsAllowPrinting])
    [NSApp stopModalWithCode:NSOKButton];
}

- (void)dismiss {
  [NSApp stopModalWithCode:NSCancelButton];
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

- (void)sayTroubles {
  std::string troubles;
  for (const std::string &trouble : session->troubles())
    troubles += (troubles.empty() ? "" : "\n") + trouble;
  if (troubles.empty() && session->panels().empty())
    troubles = messages::kNoPanelHere;
  if (!troubles.empty())
    [self say:troubles];
}

/// The pane's first control, or the button that goes on where the pane has none.
- (NSView *)firstControl {
  NSView *const first = [panes nextKeyView];
  return first == cancelButton ? printButton : first;
}

- (BOOL)run {
  [self sayTroubles];
  [self showChosenPane];
  [window center];
  [window setInitialFirstResponder:[self firstControl]];
  [window makeFirstResponder:[self firstControl]];
  [NSApp finishLaunching]; // no keys arrive before
  [NSApp activateIgnoringOtherApps:YES];
  [window makeKeyAndOrderFront:nil];
  const NSInteger answer = [NSApp runModalForWindow:window];
  [window orderOut:nil];
  return answer == NSOKButton;
}

@end

namespace imageposition {

bool runDialog(PanelSession &session, const DialogTexts &texts, std::ostream &errors) {
  DialogController *const controller = [[DialogController alloc] initWithSession:&session
                                                                           texts:texts
                                                                          errors:&errors];
  const bool printed = [controller run];
  [controller release];
  return printed;
}

} // namespace imageposition
