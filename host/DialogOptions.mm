#import "host/DialogController.h"
#import "host/DialogState.h"
#include "host/WindowTexts.hpp"
#import "platform/TextBridge.h"

#include <algorithm>

using namespace imageposition;

namespace {

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
