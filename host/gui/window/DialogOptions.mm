#import "ChoicePopUp.h"
#import "DialogController.h"
#import "DialogState.h"
#include "PrinterTexts.hpp"
#import "TextBridge.h"
#import "ValuePanel.h"
#include "WindowTexts.hpp"

#include <cstdlib>
#include <utility>

using namespace imageposition;

namespace {

/// As many as have room in the window.
constexpr std::size_t kMostConflicts = 2;

/// Fills a pop-up with an option's choices; answers their keywords.
std::vector<std::string> fill(NSPopUpButton *popUp, const std::optional<PrinterOption> &option) {
  if (option)
    return showChoices(popUp, *option);
  [popUp removeAllItems];
  [[popUp menu] addItemWithTitle:toString(messages::kNotOffered) action:nullptr keyEquivalent:@""];
  [popUp selectItemAtIndex:0];
  [popUp setEnabled:NO];
  return {};
}

/// What entering a value begins with: the one that holds, or for the page the size that holds.
std::string firstValue(const PrinterOption &option, ppd_file_t *ppd, LengthUnit unit) {
  const ppd_size_t *const size = option.custom->isPageSize ? ppdPageSize(ppd, nullptr) : nullptr;
  if (size == nullptr || readCustomValue(*option.custom, option.chosen))
    return option.chosen;
  const auto side = [=](float points) {
    return writeLength(convert({points, LengthUnit::Point}, unit));
  };
  return writeCustomValue(*option.custom, {side(size->width), side(size->length)});
}

} // namespace

@interface DialogController (OptionsInside)
- (void)choose:(const std::string &)choice of:(const std::string &)keyword by:(NSView *)sender;
- (void)enterValueOf:(const std::string &)keyword by:(NSView *)sender;
- (void)optionChanged:(const std::string &)keyword;
- (void)choice:(NSInteger)chosen
            of:(const std::string &)keyword
          from:(const std::vector<std::string> &)choices
            by:(NSView *)sender;
- (void)refreshHint;
@end

@implementation DialogController (Options)

- (void)refreshOptions {
  PrinterOptions printerOptions(session->job().printer(), session->job().settings());
  const auto twoSided = printerOptions.twoSided();
  state->twoSidedKeyword = twoSided ? twoSided->keyword : "Duplex";
  state->twoSidedChoices = fill(views.twoSided, twoSided);
  state->mediaChoices = fill(views.media, printerOptions.find("PageSize"));
  [self refreshHint];
}

- (void)refreshHint {
  OptionConflicts conflicts(session->job().printer(), session->job().settings());
  std::string text;
  for (const std::string &sentence : conflicts.sentences(kMostConflicts))
    text += (text.empty() ? "" : " ") + sentence;
  state->proposal = text.empty() ? std::nullopt : conflicts.proposal(state->chosenLast);
  if (state->proposal)
    text += " " + state->proposal->sentence;
  if (text.empty() && !session->panels().panels().empty())
    text = reasonText(availabilityOf(session->job().printer().ppd()));
  [views.hint setStringValue:toString(text)];
  [views.hint setToolTip:toString(text)]; // long names have no room
  [views.resolve setHidden:!state->proposal];
}

- (void)refreshPicture {
  [views.preview
      showPreview:makePreview(session->job().settings(), session->job().printer().ppd())];
}

/// The panels see the change at once: the pane is shown anew.
- (void)choose:(const std::string &)choice of:(const std::string &)keyword by:(NSView *)sender {
  [self takeFocus:sender];
  if (![self savePanels])
    return;
  PrinterOptions(session->job().printer(), session->job().settings()).choose(keyword, choice);
  [self optionChanged:keyword];
}

- (void)optionChanged:(const std::string &)keyword {
  state->chosenLast = keyword;
  [self refreshOptions];
  [self showChosenPane];
  [self refreshPicture];
}

/// Another window can be shown only when the pop-up's menu has gone.
- (void)enterValueOf:(const std::string &)keyword by:(NSView *)sender {
  [self takeFocus:sender];
  if (![self savePanels])
    return;
  state->optionToEnter = keyword;
  wakeModalLoop(views.window);
}

/// Whatever comes of it the pop-up shows what holds then.
- (void)enterValue {
  const std::string keyword = std::exchange(state->optionToEnter, {});
  PrinterOptions printerOptions(session->job().printer(), session->job().settings());
  const auto option = printerOptions.find(keyword);
  if (!option || !option->custom)
    return;
  const LengthUnit unit = usualUnit(std::getenv);
  const auto value = askForValue(views.window, option->text, *option->custom,
                                 firstValue(*option, session->job().printer().ppd(), unit), unit);
  if (value && !printerOptions.choose(keyword, *value))
    [self say:messages::entryUnusable(option->text)];
  [self optionChanged:keyword];
}

- (void)option:(const std::string &)keyword
     wasChosen:(const std::string &)choice
            by:(NSView *)sender {
  [self choose:choice of:keyword by:sender];
}

- (void)option:(const std::string &)keyword wantsValueBy:(NSView *)sender {
  [self enterValueOf:keyword by:sender];
}

- (void)option:(const std::string &)keyword
        choice:(const std::string &)choice
     wasTicked:(bool)on
            by:(NSView *)sender {
  [self takeFocus:sender];
  if (![self savePanels])
    return;
  PrinterOptions(session->job().printer(), session->job().settings()).tick(keyword, choice, on);
  [self optionChanged:keyword];
}

- (void)choice:(NSInteger)chosen
            of:(const std::string &)keyword
          from:(const std::vector<std::string> &)choices
            by:(NSView *)sender {
  if (chosen >= static_cast<NSInteger>(choices.size()))
    [self enterValueOf:keyword by:sender];
  else if (chosen >= 0)
    [self choose:std::string(choices[chosen]) of:keyword by:sender];
}

- (void)twoSidedChosen:(id)sender {
  [self choice:[sender indexOfSelectedItem]
            of:std::string(state->twoSidedKeyword)
          from:state->twoSidedChoices
            by:sender];
}

- (void)mediaChosen:(id)sender {
  [self choice:[sender indexOfSelectedItem] of:"PageSize" from:state->mediaChoices by:sender];
}

- (void)resolveConflicts:(id)sender {
  (void)sender;
  if (!state->proposal || ![self savePanels])
    return;
  const ConflictProposal proposal = *state->proposal;
  OptionConflicts(session->job().printer(), session->job().settings()).take(proposal);
  [self refresh];
  [self showChosenPane];
  [views.window makeFirstResponder:[self firstControl]];
}

@end
