#import "host/DialogController.h"
#import "host/DialogState.h"
#include "host/DocumentNames.hpp"
#include "host/Messages.hpp"
#include "host/OptionMessages.hpp"
#include "host/PageRanges.hpp"
#include "host/WindowTexts.hpp"
#import "platform/TextBridge.h"

using namespace imageposition;

namespace {

/// Options that stand above the panes.
const char *const kPlacedOptions[] = {"PageSize", "Collate"};

} // namespace

@interface DialogController (PanesInside)
- (void)showSummary;
- (void)showOptions;
- (void)showPanel:(PanelDriver *)panel;
- (std::vector<OptionGroup>)listedOptions;
- (SummarySection)jobSection;
- (SummarySection)optionSection;
@end

@implementation DialogController (Panes)

- (void)listPanes {
  [views.panes removeAllItems];
  // By hand: adding an item by its title would take away an earlier one of the same title.
  NSMenu *const menu = [views.panes menu];
  for (const auto &panel : job->panels().panels())
    [menu addItemWithTitle:toString(panel->name()) action:NULL keyEquivalent:@""];
  [menu addItemWithTitle:toString(messages::kOptionsPane) action:NULL keyEquivalent:@""];
  [menu addItemWithTitle:toString(messages::kSummaryTitle) action:NULL keyEquivalent:@""];
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
  job->panels().drop(panel, trouble);
  [self say:trouble];
  [self listPanes];
  [self showChosenPane];
  [views.window makeFirstResponder:[self firstControl]];
}

- (BOOL)savePanels {
  for (const auto &panel : job->panels().panels()) {
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
  if (shownPanel == nullptr || ![view isDescendantOf:shownPanel->view()] || [self isSending] ||
      [[views.window firstResponder] isKindOfClass:[NSText class]])
    return;
  PanelDriver *const panel = shownPanel;
  try {
    panel->save();
  } catch (const Failure &failure) {
    [self leaveOut:panel because:failure.what()];
  }
}

- (void)restorePanels {
  for (const auto &panel : job->panels().panels()) {
    try {
      panel->restore();
    } catch (const Failure &failure) {
      [self leaveOut:panel.get() because:failure.what()];
      return;
    }
  }
}

- (BOOL)panelsAllowPrinting {
  for (const auto &panel : job->panels().panels()) {
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
  showInPaneArea(views, panel->view());
  try {
    panel->willShow();
  } catch (const Failure &failure) {
    [self leaveOut:panel because:failure.what()];
  }
}

- (std::vector<OptionGroup>)listedOptions {
  std::vector<std::string> without(std::begin(kPlacedOptions), std::end(kPlacedOptions));
  without.push_back(state->twoSidedKeyword);
  for (const auto &panel : job->panels().panels())
    without.insert(without.end(), panel->optionKeys().begin(), panel->optionKeys().end());
  return PrinterOptions(job->printer(), job->settings()).listed(without);
}

- (void)showOptions {
  shownPanel = nullptr;
  [options showGroups:[self listedOptions]];
  showInPaneArea(views, options);
}

- (SummarySection)jobSection {
  SummarySection section{messages::kJobSection, {}};
  section.lines.push_back({messages::kPrinterTitle, job->printer().name()});
  if (!job->documents().empty())
    section.lines.push_back({messages::kDocumentTitle, documentsInWords(job->documents())});
  const char *const copies = job->settings().get("copies");
  section.lines.push_back({messages::kCopiesTitle, copies != nullptr ? copies : "1"});
  const PageChoice pages = readPageChoice(job->settings());
  std::string text = pages.ranges ? pages.ranges->text() : messages::kAllPages.str();
  if (pages.set != PageSet::All)
    text = messages::inOrder(text, pages.set == PageSet::Odd ? messages::kOddPages
                                                             : messages::kEvenPages);
  section.lines.push_back({messages::kPagesTitle, text});
  return section;
}

- (SummarySection)optionSection {
  SummarySection section{messages::kOptionsPane, {}};
  PrinterOptions all(job->printer(), job->settings());
  std::vector<std::string> announced;
  for (const auto &panel : job->panels().panels())
    announced.insert(announced.end(), panel->optionKeys().begin(), panel->optionKeys().end());
  for (const OptionGroup &group : all.listed(announced))
    for (const PrinterOption &option : group.options) {
      const std::string chosen = option.textOf(option.chosen);
      section.lines.push_back(
          {option.text, option.differsFromDefault()
                            ? messages::differingValue(chosen, option.textOf(option.defaultChoice))
                            : chosen});
    }
  return section;
}

- (void)showSummary {
  shownPanel = nullptr;
  std::vector<SummarySection> sections{[self jobSection]};
  for (const auto &panel : job->panels().panels()) {
    try {
      sections.push_back(panel->summary());
    } catch (const Failure &failure) {
      [self leaveOut:panel.get() because:failure.what()];
      return;
    }
  }
  sections.push_back([self optionSection]);
  [summary showSections:sections];
  showInPaneArea(views, summary);
}

- (void)showChosenPane {
  const auto &panels = job->panels().panels();
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
