#import "DialogController.h"
#import "DialogState.h"
#include "JobSummary.hpp"
#include "JobTexts.hpp"
#import "Labels.h"
#include "PluginTexts.hpp"
#import "TextBridge.h"
#include "WindowTexts.hpp"

using namespace imageposition;

namespace {

constexpr CGFloat kPlaceholderWidth = 400; // as wide as a panel

/// Options that stand above the panes.
const char *const kPlacedOptions[] = {"PageSize", "Collate"};

} // namespace

@interface DialogController (PanesInside)
- (void)showSummary;
- (void)showOptions;
- (void)showPanel:(PanelDriver *)panel;
- (std::vector<OptionGroup>)listedOptions;
- (std::vector<std::string>)announcedOptions;
@end

@implementation DialogController (Panes)

- (void)listPanes {
  [views.panes removeAllItems];
  // By hand: adding an item by its title would take away an earlier one of the same title.
  NSMenu *const menu = [views.panes menu];
  for (const auto &panel : session->panels().panels())
    [menu addItemWithTitle:toString(panel->name()) action:nullptr keyEquivalent:@""];
  [menu addItemWithTitle:toString(messages::kOptionsPane) action:nullptr keyEquivalent:@""];
  [menu addItemWithTitle:toString(messages::kSummaryTitle) action:nullptr keyEquivalent:@""];
  [views.panes selectItemAtIndex:0];
}

- (NSView *)firstControl {
  NSView *const first = [views.panes nextKeyView];
  return first == views.resolve ? views.print : first;
}

- (void)leaveOut:(PanelDriver *)panel because:(const std::string &)trouble {
  if (panel == shownPanel) {
    [panel->view() removeFromSuperview];
    shownPanel = nullptr;
  }
  session->panels().drop(panel, trouble);
  [self say:trouble];
  [self listPanes];
  [self showChosenPane];
  [views.window makeFirstResponder:[self firstControl]];
}

- (BOOL)savePanels {
  for (const auto &panel : session->panels().panels()) {
    try {
      panel->save();
    } catch (const Failure &failure) {
      [self leaveOut:panel.get() because:failure.what()];
      return NO;
    }
  }
  return YES;
}

// A panel's controls need not reach the job's settings before it saves, and the picture shows the
// settings. The text of a field that is being edited is nobody's yet, so that is left alone.
- (void)personActedOn:(NSView *)view {
  if (shownPanel == nullptr || ![view isDescendantOf:shownPanel->view()] || [self isSending])
    return;
  if ([view isKindOfClass:[NSButton class]])
    [self takeFocus:view]; // a click leaves it in the field
  if ([[views.window firstResponder] isKindOfClass:[NSText class]])
    return;
  PanelDriver *const panel = shownPanel;
  try {
    panel->save();
  } catch (const Failure &failure) {
    [self leaveOut:panel because:failure.what()];
  }
}

- (void)restorePanels {
  for (const auto &panel : session->panels().panels()) {
    try {
      panel->restore();
    } catch (const Failure &failure) {
      [self leaveOut:panel.get() because:failure.what()];
      return;
    }
  }
}

- (BOOL)panelsAllowPrinting {
  for (const auto &panel : session->panels().panels()) {
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

- (void)showPanel:(PanelDriver *)panel {
  shownPanel = panel;
  if (!panel->hasView())
    panel->setPlaceholder(
        makeParagraph(messages::panelWithoutView(panel->pluginPath()), kPlaceholderWidth));
  showInPaneArea(views, panel->view());
  try {
    panel->willShow();
  } catch (const Failure &failure) {
    [self leaveOut:panel because:failure.what()];
  }
}

- (std::vector<std::string>)announcedOptions {
  std::vector<std::string> announced;
  for (const auto &panel : session->panels().panels())
    announced.insert(announced.end(), panel->optionKeys().begin(), panel->optionKeys().end());
  return announced;
}

- (std::vector<OptionGroup>)listedOptions {
  std::vector<std::string> without = [self announcedOptions];
  without.insert(without.end(), std::begin(kPlacedOptions), std::end(kPlacedOptions));
  without.push_back(state->twoSidedKeyword);
  return PrinterOptions(session->job().printer(), session->job().settings()).listed(without);
}

- (void)showOptions {
  shownPanel = nullptr;
  [options showGroups:[self listedOptions]];
  showInPaneArea(views, options);
}

- (void)showSummary {
  shownPanel = nullptr;
  std::vector<SummarySection> sections{jobSection(
      session->job().printer().name(), session->job().documents(), session->job().settings())};
  for (const auto &panel : session->panels().panels()) {
    try {
      sections.push_back(panel->summary());
    } catch (const Failure &failure) {
      [self leaveOut:panel.get() because:failure.what()];
      return;
    }
  }
  sections.push_back(
      optionSection(session->job().printer(), session->job().settings(), [self announcedOptions]));
  sections.push_back(sentSection(session->job().request(state->destinations.list())));
  [summary showSections:sections];
  showInPaneArea(views, summary);
}

- (void)showChosenPane {
  const auto &panels = session->panels().panels();
  const auto chosen =
      static_cast<std::size_t>(std::max<NSInteger>([views.panes indexOfSelectedItem], 0));
  if (chosen < panels.size())
    [self showPanel:panels[chosen].get()];
  else if (chosen == panels.size())
    [self showOptions];
  else
    [self showSummary];
}

- (void)paneChosen:(id)sender {
  [self takeFocus:sender]; // the field that was being edited takes its text
  const NSInteger chosen = [views.panes indexOfSelectedItem];
  if (![self savePanels])
    return;
  [views.panes selectItemAtIndex:chosen];
  [self showChosenPane];
}

@end
