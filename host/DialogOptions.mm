#import "host/DialogController.h"
#import "host/DialogState.h"
#include "host/ExitCode.hpp"
#include "host/PageRanges.hpp"
#include "host/WindowTexts.hpp"
#import "platform/TextBridge.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

using namespace imageposition;

namespace {

enum PagesItem { kAllItem, kOddItem, kEvenItem, kRangeItem };

/// None unless the whole text is a number that CUPS takes.
std::optional<int> readCopies(const std::string &text) {
  char *end = nullptr;
  const long number = std::strtol(text.c_str(), &end, 10);
  if (text.empty() || *end != '\0' || number < 1 || number > 9999)
    return std::nullopt;
  return static_cast<int>(number);
}

bool isTrue(const char *value) {
  return value != nullptr && (strcasecmp(value, "true") == 0 || strcasecmp(value, "on") == 0 ||
                              strcasecmp(value, "yes") == 0);
}

/// Fills a pop-up with an option's choices; answers their keywords.
std::vector<std::string> fill(NSPopUpButton *popUp, const std::optional<PrinterOption> &option) {
  std::vector<std::string> keywords;
  [popUp removeAllItems];
  NSMenu *const menu = [popUp menu];
  if (!option) {
    [menu addItemWithTitle:toString(messages::kNotOffered) action:NULL keyEquivalent:@""];
    [popUp selectItemAtIndex:0];
    [popUp setEnabled:NO];
    return keywords;
  }
  for (const OptionChoice &choice : option->choices) {
    [menu addItemWithTitle:toString(choice.text) action:NULL keyEquivalent:@""];
    keywords.push_back(choice.keyword);
  }
  const auto chosen = std::find(keywords.begin(), keywords.end(), option->chosen);
  [popUp selectItemAtIndex:chosen == keywords.end() ? -1 : chosen - keywords.begin()];
  [popUp setEnabled:!option->isLocked];
  return keywords;
}

} // namespace

@interface DialogController (OptionsInside)
- (void)choose:(const std::string &)choice of:(const std::string &)keyword by:(NSView *)sender;
- (void)refreshHint;
- (void)takeRanges;
@end

@implementation DialogController (Options)

- (void)refreshOptions {
  PrinterOptions printerOptions(job->printer(), job->settings());
  const auto twoSided = printerOptions.twoSided();
  state->twoSidedKeyword = twoSided ? twoSided->keyword : "Duplex";
  state->twoSidedChoices = fill(views.twoSided, twoSided);
  state->mediaChoices = fill(views.media, printerOptions.find("PageSize"));
  [self refreshHint];
}

- (void)refreshHint {
  OptionConflicts conflicts(job->printer(), job->settings());
  std::string text;
  for (const OptionConflict &conflict : conflicts.find())
    text += (text.empty() ? "" : " ") + conflict.sentence;
  state->proposal = text.empty() ? std::nullopt : conflicts.proposal(state->chosenLast);
  if (state->proposal)
    text += " " + state->proposal->sentence;
  if (text.empty() && !job->panels().panels().empty())
    text = reasonText(availabilityOf(job->printer().ppd()));
  [views.hint setStringValue:toString(text)];
  [views.resolve setHidden:!state->proposal];
}

- (void)refreshPicture {
  [views.preview showPreview:makePreview(job->settings(), job->printer().ppd())];
}

- (void)refreshCopies {
  const char *const copies = job->settings().get("copies");
  [views.copies setStringValue:toString(copies != nullptr ? copies : "1")];
  [views.copiesStepper setIntValue:copies != nullptr ? std::atoi(copies) : 1];
  const char *const collate = job->settings().get("Collate");
  [views.collate setState:isTrue(collate) ? NSOnState : NSOffState];
}

- (void)refreshPages {
  if ([views.pages numberOfItems] == 0)
    for (const Text &title :
         {messages::kAllPages, messages::kOddPages, messages::kEvenPages, messages::kPageRange})
      [[views.pages menu] addItemWithTitle:toString(title) action:NULL keyEquivalent:@""];
  const PageChoice choice = readPageChoice(job->settings());
  const PagesItem item = choice.ranges                 ? kRangeItem
                         : choice.set == PageSet::Odd  ? kOddItem
                         : choice.set == PageSet::Even ? kEvenItem
                                                       : kAllItem;
  [views.pages selectItemAtIndex:item];
  [views.ranges setStringValue:toString(choice.ranges ? choice.ranges->text() : "")];
  [views.ranges setEnabled:choice.ranges.has_value()];
}

/// Throws a `Failure` when the text cannot be understood.
- (void)takeRanges {
  if ([views.pages indexOfSelectedItem] != kRangeItem)
    return;
  PageChoice choice;
  choice.ranges = PageRanges::parse(toText([views.ranges stringValue]));
  storePageChoice(choice, job->settings());
}

- (BOOL)takeEntries {
  const std::string typed = toText([views.copies stringValue]);
  const auto copies = readCopies(typed);
  if (!copies) {
    [self say:messages::copiesNotUnderstood(typed)];
    [views.window makeFirstResponder:views.copies];
    return NO;
  }
  try {
    [self takeRanges];
  } catch (const Failure &failure) {
    [self say:failure.what()];
    [views.window makeFirstResponder:views.ranges];
    return NO;
  }
  if (*copies != 1 || job->settings().get("copies") != nullptr)
    job->settings().set("copies", std::to_string(*copies));
  return YES;
}

- (void)controlTextDidEndEditing:(NSNotification *)notification {
  if ([notification object] == views.copies)
    [self copiesChanged:views.copies];
  else if ([notification object] == views.ranges)
    [self rangesChanged:views.ranges];
}

- (void)copiesChanged:(id)sender {
  (void)sender;
  const std::string typed = toText([views.copies stringValue]);
  const auto copies = readCopies(typed);
  if (!copies) {
    [self say:messages::copiesNotUnderstood(typed)];
    return;
  }
  [views.copiesStepper setIntValue:*copies];
  if (*copies != 1 || job->settings().get("copies") != nullptr)
    job->settings().set("copies", std::to_string(*copies));
}

- (void)copiesStepped:(id)sender {
  (void)sender;
  [self takeFocus:views.copies];
  const int copies = [views.copiesStepper intValue];
  [views.copies setIntValue:copies];
  job->settings().set("copies", std::to_string(copies));
}

- (void)collateChanged:(id)sender {
  (void)sender;
  job->settings().set("Collate", [views.collate state] == NSOnState ? "True" : "False");
}

- (void)pagesChosen:(id)sender {
  [self takeFocus:sender];
  const NSInteger item = [views.pages indexOfSelectedItem];
  [views.ranges setEnabled:item == kRangeItem];
  if (item == kRangeItem) {
    [views.window makeFirstResponder:views.ranges];
    return;
  }
  PageChoice choice;
  choice.set = item == kOddItem ? PageSet::Odd : item == kEvenItem ? PageSet::Even : PageSet::All;
  storePageChoice(choice, job->settings());
}

- (void)rangesChanged:(id)sender {
  (void)sender;
  if ([[views.ranges stringValue] length] == 0)
    return;
  try {
    [self takeRanges];
  } catch (const Failure &failure) {
    [self say:failure.what()];
  }
}

/// The panels see the change at once: the pane is shown anew.
- (void)choose:(const std::string &)choice of:(const std::string &)keyword by:(NSView *)sender {
  [self takeFocus:sender];
  if (![self savePanels])
    return;
  PrinterOptions(job->printer(), job->settings()).choose(keyword, choice);
  state->chosenLast = keyword;
  [self refreshOptions];
  [self showChosenPane];
  [self refreshPicture];
}

- (void)option:(const std::string &)keyword
     wasChosen:(const std::string &)choice
            by:(NSView *)sender {
  [self choose:choice of:keyword by:sender];
}

- (void)twoSidedChosen:(id)sender {
  const NSInteger chosen = [sender indexOfSelectedItem];
  if (chosen >= 0 && chosen < static_cast<NSInteger>(state->twoSidedChoices.size()))
    [self choose:std::string(state->twoSidedChoices[chosen]) of:state->twoSidedKeyword by:sender];
}

- (void)mediaChosen:(id)sender {
  const NSInteger chosen = [sender indexOfSelectedItem];
  if (chosen >= 0 && chosen < static_cast<NSInteger>(state->mediaChoices.size()))
    [self choose:std::string(state->mediaChoices[chosen]) of:"PageSize" by:sender];
}

- (void)resolveConflicts:(id)sender {
  (void)sender;
  if (!state->proposal || ![self savePanels])
    return;
  const ConflictProposal proposal = *state->proposal;
  OptionConflicts(job->printer(), job->settings()).take(proposal);
  [self refresh];
  [self showChosenPane];
  [views.window makeFirstResponder:[self firstControl]];
}

@end
