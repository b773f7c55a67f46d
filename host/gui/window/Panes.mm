#import "Panes.h"

#include "ExitCode.hpp"
#import "JobSettingRows.h"
#include "JobSettingsTexts.hpp"
#include "JobSummary.hpp"
#include "JobTexts.hpp"
#import "KeyLoop.h"
#import "Labels.h"
#import "NotePanel.h"
#include "Phrases.hpp"
#include "PluginTexts.hpp"
#include "PrinterOptions.hpp"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>

using namespace imageposition;

namespace {

constexpr CGFloat kPlaceholderWidth = 400; // as wide as a panel
constexpr NSSize kSmallestPane = {470, 220};

/// Options with a control above the panes.
const char *const kPlacedOptions[] = {"PageSize", "Collate"};

std::vector<PanelDriver *> panelsOf(PrintSession &session) {
  std::vector<PanelDriver *> panels;
  for (const auto &panel : session.panels().panels())
    panels.push_back(panel.get());
  return panels;
}

} // namespace

NSSize imageposition::largestPane(PanelSession &session) {
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

@interface Panes ()
- (void)paneChosen:(id)sender;
- (void)show:(NSView *)pane;
- (void)showPanel:(PanelDriver *)panel;
- (void)showOptions;
- (void)showMore;
- (void)nameMore;
- (void)showSummary;
- (void)leaveOut:(PanelDriver *)panel because:(const std::string &)trouble;
- (void)tell:(const PanelReplies &)replies;
@end

@implementation Panes

- (id)initWithDialog:(id<DialogServices>)theDialog
        optionsOwner:(id<OptionsViewOwner>)theOwner
           moreOwner:(id<OptionsViewOwner>)theMoreOwner {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  optionsOwner = theOwner;
  moreOwner = theMoreOwner;
  popUp = [makePopUp(self, @selector(paneChosen:)) retain];
  area = [[PaneArea alloc] initWithFrame:NSZeroRect];
  listed = new std::vector<PanelDriver *>;
  return self;
}

- (void)dealloc {
  [popUp setTarget:nil];
  [popUp release];
  [area release];
  [options release];
  [more release];
  [summary release];
  delete listed;
  [super dealloc];
}

- (DialogRow)row {
  return {messages::kPaneRow, {{popUp}}};
}

- (PaneArea *)area {
  return area;
}

- (void)areaResized {
  if (summary != nil && [summary superview] == area)
    [self showSummary]; // wraps its texts anew
}

- (void)linkBefore:(NSView *)view {
  after = view;
}

- (NSView *)firstControl {
  NSView *const first = [popUp nextKeyView];
  return first == after ? nil : first;
}

- (void)list {
  shown = nullptr;
  *listed = panelsOf([dialog session]);
  [popUp removeAllItems];
  for (const PanelDriver *panel : *listed)
    addItem(popUp, panel->name());
  addItem(popUp, messages::kOptionsPane);
  addItem(popUp, messages::kMorePane);
  addItem(popUp, messages::kSummaryTitle);
  [popUp selectItemAtIndex:0];
}

- (void)refresh {
  if (*listed != panelsOf([dialog session]))
    [self list];
  [self nameMore];
  const auto chosen = static_cast<std::size_t>(std::max<NSInteger>([popUp indexOfSelectedItem], 0));
  if (chosen < listed->size())
    [self showPanel:listed->at(chosen)];
  else if (chosen == listed->size())
    [self showOptions];
  else if (chosen == listed->size() + 1)
    [self showMore];
  else
    [self showSummary];
}

- (void)printersListed {
  if (more != nil && [more superview] == area)
    [self showMore];
}

/// The item's title says when a setting in the pane differs, so that none is forgotten.
- (void)nameMore {
  NSMenuItem *const item = [popUp itemAtIndex:static_cast<NSInteger>(listed->size()) + 1];
  NSString *const title = toString(messages::morePane(jobSettingsOf([dialog session]).differing()));
  if (![[item title] isEqualToString:title]) {
    [item setTitle:title];
    [popUp synchronizeTitleAndSelectedItem];
  }
}

- (void)paneChosen:(id)sender {
  [(KeyWindow *)[sender window] focus:popUp]; // the field that was being edited takes its text
  if ([self save])
    [self refresh];
}

- (void)show:(NSView *)pane {
  const BOOL usedMoreRoom = [area usesMoreRoom];
  [area showPane:pane];
  if ([area usesMoreRoom] != usedMoreRoom)
    [dialog layOut];
  linkPane(pane, popUp, after);
}

- (void)showPanel:(PanelDriver *)panel {
  shown = panel;
  if (!panel->hasView())
    panel->setPlaceholder(
        makeParagraph(messages::panelWithoutView(panel->pluginPath()), kPlaceholderWidth));
  [self show:panel->view()];
  try {
    panel->willShow();
  } catch (const Failure &failure) {
    [self leaveOut:panel because:failure.what()];
  }
}

- (void)showOptions {
  shown = nullptr;
  PrintSession &session = [dialog session];
  PrinterOptions printerOptions(session.job().printer(), session.job().settings());
  std::vector<std::string> without = session.panels().optionKeys();
  without.insert(without.end(), std::begin(kPlacedOptions), std::end(kPlacedOptions));
  const auto twoSided = printerOptions.twoSided();
  without.push_back(twoSided ? twoSided->keyword : "Duplex");
  if (options == nil)
    options = [[OptionsView alloc] initWithFrame:[area bounds] owner:optionsOwner];
  [options setFrameSize:[area bounds].size];
  [options showGroups:printerOptions.listed(without)];
  [self show:options];
}

- (void)showMore {
  shown = nullptr;
  if (more == nil)
    more = [[OptionsView alloc] initWithFrame:[area bounds] owner:moreOwner];
  [more setFrameSize:[area bounds].size];
  [more showGroups:jobSettingsOf([dialog session]).listed()];
  [self show:more];
}

- (void)showSummary {
  shown = nullptr;
  PrintSession &session = [dialog session];
  PrintJob &job = session.job();
  std::vector<SummarySection> sections{
      jobSection(job.printer().name(), job.documents(), job.settings())};
  const JobSettings settings = jobSettingsOf(session);
  if (SummarySection section = settings.section(); !section.lines.empty())
    sections.push_back(std::move(section));
  for (const auto &panel : session.panels().panels()) {
    try {
      sections.push_back(panel->summary());
    } catch (const Failure &failure) {
      [self leaveOut:panel.get() because:failure.what()];
      return;
    }
  }
  sections.push_back(optionSection(job.printer(), job.settings(), session.panels().optionKeys()));
  std::vector<std::string> elsewhere = session.panels().optionKeys();
  for (std::string &name : settings.names())
    elsewhere.push_back(std::move(name));
  const SummarySection others =
      otherSection(job.request(session.destinations().list()), job.printer(), elsewhere);
  if (!others.lines.empty())
    sections.push_back(others);
  if (summary == nil)
    summary = [[SummaryView alloc] initWithFrame:[area bounds]];
  [summary setFrameSize:[area bounds].size];
  [summary showSections:sections];
  [self show:summary];
}

- (void)leaveOut:(PanelDriver *)panel because:(const std::string &)trouble {
  [dialog session].panels().drop(panel, trouble);
  [self tell:PanelReplies{{trouble}, {}}];
}

/// Says what panels replied, and shows those that are left.
- (void)tell:(const PanelReplies &)replies {
  if (replies.areAllYes())
    return;
  [dialog say:messages::sentences(
                  {messages::sentences(replies.failures), messages::sentences(replies.refusals)})];
  if (!replies.failures.empty())
    [dialog refreshOptions];
}

- (BOOL)save {
  const PanelReplies replies = [dialog session].panels().save();
  [self tell:replies];
  return replies.failures.empty();
}

- (BOOL)saveAll {
  const PanelReplies replies = [dialog session].panels().save();
  [self tell:replies];
  return replies.areAllYes();
}

- (BOOL)allowPrinting {
  const PanelReplies asked = [dialog session].panels().askToPrint();
  [self tell:asked];
  if (!asked.areAllYes())
    return NO;
  const PanelReplies saved = [dialog session].panels().save();
  [self tell:saved];
  if (!saved.failures.empty() || saved.refusals.empty())
    return saved.failures.empty();
  return isConfirmed([popUp window], {
    messages::kPrintAnywayWindow, messages::sentences(saved.refusals), messages::kPrintAnyway,
        messages::kGoBack
  });
}

- (BOOL)isPanels:(NSView *)view {
  return shown != nullptr && [view isDescendantOf:shown->view()];
}

- (void)takeNumber:(NSTextField *)field keepingIt:(BOOL)isKept {
  NSText *const editor = [field currentEditor];
  NSString *const typed = [[[editor string] copy] autorelease];
  const NSRange selected = [editor selectedRange];
  [field sendAction:[field action] to:[field target]];
  if ([field currentEditor] != editor || !isKept) // the panel may have been left out
    return;
  if (![[editor string] isEqualToString:typed])
    [editor setString:typed];
  [editor setSelectedRange:selected];
}

- (void)userActedOn:(NSView *)view {
  if (![self isPanels:view])
    return;
  KeyWindow *const window = (KeyWindow *)[view window];
  if ([view isKindOfClass:[NSButton class]])
    [window focus:view]; // a click leaves it in the field
  if ([[window firstResponder] isKindOfClass:[NSText class]])
    return;
  PanelDriver *const panel = shown;
  try {
    const auto refusal = panel->save();
    if (refusal || isRefusalShown)
      [dialog show:refusal.value_or("")];
    isRefusalShown = refusal.has_value();
  } catch (const Failure &failure) {
    [self leaveOut:panel because:failure.what()];
  }
}

- (BOOL)leaveOutPanelOf:(NSView *)view because:(const std::string &)what {
  if (![self isPanels:view])
    return NO;
  [self leaveOut:shown because:messages::pluginRaised(shown->pluginPath(), "event", what)];
  return YES;
}

@end
