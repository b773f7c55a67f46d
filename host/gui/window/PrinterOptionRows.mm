#import "PrinterOptionRows.h"

#include "Availability.hpp"
#import "ChoicePopUp.h"
#import "Labels.h"
#import "MnemonicControls.h"
#include "OptionConflicts.hpp"
#include "Phrases.hpp"
#include "PrinterTexts.hpp"
#import "TextBridge.h"
#import "ValuePanel.h"
#include "WindowTexts.hpp"

#include <cstdlib>
#include <optional>
#include <utility>

using namespace imageposition;

struct imageposition::PrinterOptionState {
  std::string twoSidedKeyword;
  std::vector<std::string> twoSidedChoices; // keywords, in the order of the pop-up
  std::vector<std::string> mediaChoices;
  std::string chosenLast; // the option that the user changed last
  std::string conflict;   // may be empty
  std::optional<ConflictProposal> proposal;
  std::string optionToEnter; // the option that the user is about to enter a value for
};

namespace {

constexpr std::size_t kMostConflicts = 2; // that the hint has room for

/// Fills a pop-up with an option's choices; returns their keywords.
std::vector<std::string> fill(ListPopUp *popUp, const std::optional<PrinterOption> &option) {
  if (option)
    return showChoices(popUp, *option);
  [popUp removeAllItems];
  addItem(popUp, messages::kNotOffered);
  [popUp selectItemAtIndex:0];
  [popUp setEnabled:NO];
  return {};
}

/// What entering a value begins with: the custom value that holds, or for a page the size that
/// holds.
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

@interface PrinterOptionRows ()
- (void)twoSidedChosen:(id)sender;
- (void)mediaChosen:(id)sender;
- (void)resolveConflict:(id)sender;
- (void)choice:(NSInteger)chosen
            of:(const std::string &)keyword
          from:(const std::vector<std::string> &)choices
            by:(NSView *)sender;
- (void)followAlignment;
- (void)optionChanged:(const std::string &)keyword;
- (BOOL)panelsAreSavedBefore:(NSView *)sender;
- (void)refreshHint;
@end

@implementation PrinterOptionRows

- (id)initWithDialog:(id<DialogServices>)theDialog {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  state = new PrinterOptionState;
  twoSided = [makePopUp(self, @selector(twoSidedChosen:)) retain];
  media = [makePopUp(self, @selector(mediaChosen:)) retain];
  hint = [makeLabel("") retain];
  [[hint cell] setWraps:YES];
  resolve = [makeButton(messages::kResolve, self, @selector(resolveConflict:)) retain];
  [resolve setHidden:YES];
  return self;
}

- (void)dealloc {
  for (NSControl *control : {(NSControl *)twoSided, (NSControl *)media, (NSControl *)resolve}) {
    [control setTarget:nil];
    [control release];
  }
  [hint release];
  delete state;
  [super dealloc];
}

- (std::vector<DialogRow>)rows {
  return {{messages::kTwoSidedRow, {{twoSided}}}, {messages::kMediaRow, {{media}}}};
}

- (NSTextField *)hint {
  return hint;
}

- (NSButton *)resolveButton {
  return resolve;
}

- (std::string)conflict {
  return state->conflict;
}

- (void)refresh {
  PrintJob &job = [dialog session].job();
  PrinterOptions options(job.printer(), job.settings());
  const auto option = options.twoSided();
  state->twoSidedKeyword = option ? option->keyword : "";
  state->twoSidedChoices = fill(twoSided, option);
  state->mediaChoices = fill(media, options.find("PageSize"));
  [self refreshHint];
}

- (void)refreshHint {
  PrintJob &job = [dialog session].job();
  OptionConflicts conflicts(job.printer(), job.settings());
  std::string text = messages::sentences(conflicts.sentences(kMostConflicts));
  state->conflict = text;
  state->proposal = text.empty() ? std::nullopt : conflicts.proposal(state->chosenLast);
  if (state->proposal)
    text = messages::sentences({text, state->proposal->sentence});
  if (text.empty() && ![dialog session].panels().panels().empty())
    text = reasonText(availabilityOf(job.printer().ppd()));
  [hint setStringValue:toString(text)];
  [hint setToolTip:toString(text)]; // long names may not fit
  [resolve setHidden:!state->proposal];
}

/// A click leaves the focus, and what is being typed, in another field.
- (BOOL)panelsAreSavedBefore:(NSView *)sender {
  [(KeyWindow *)[sender window] focus:sender];
  return [dialog savePanels];
}

/// Offsets that were measured belong to the paper, the tray and the turning.
- (void)followAlignment {
  PrintSession &session = [dialog session];
  if (session.job().alignment().follow())
    [dialog show:session.readMeasuredOffsets()];
}

- (void)optionChanged:(const std::string &)keyword {
  state->chosenLast = keyword;
  [self followAlignment];
  [dialog refreshOptions];
}

- (void)option:(const std::string &)keyword
     wasChosen:(const std::string &)choice
            by:(NSView *)sender {
  if (![self panelsAreSavedBefore:sender])
    return;
  PrintJob &job = [dialog session].job();
  PrinterOptions(job.printer(), job.settings()).choose(keyword, choice);
  [self optionChanged:keyword];
}

- (void)option:(const std::string &)keyword
        choice:(const std::string &)choice
     wasTicked:(bool)on
            by:(NSView *)sender {
  if (![self panelsAreSavedBefore:sender])
    return;
  PrintJob &job = [dialog session].job();
  PrinterOptions(job.printer(), job.settings()).tick(keyword, choice, on);
  [self optionChanged:keyword];
}

- (void)option:(const std::string &)keyword wantsValueBy:(NSView *)sender {
  if (![self panelsAreSavedBefore:sender])
    return;
  state->optionToEnter = keyword;
  wakeModalLoop([hint window]);
}

/// Also refreshes after Cancel: the pop-up still shows the item that leads here.
- (void)askForChosenValue {
  const std::string keyword = std::exchange(state->optionToEnter, {});
  if (keyword.empty())
    return;
  PrintJob &job = [dialog session].job();
  PrinterOptions options(job.printer(), job.settings());
  const auto option = options.find(keyword);
  if (!option || !option->custom)
    return;
  const LengthUnit unit = usualUnit(std::getenv);
  const auto value = askForValue([hint window], option -> text, *option -> custom,
                                 firstValue(*option, job.printer().ppd(), unit), unit);
  if (value && !options.choose(keyword, *value))
    [dialog say:messages::entryUnusable(option->text)];
  [self optionChanged:keyword];
}

/// The item after the choices leads to entering a value.
- (void)choice:(NSInteger)chosen
            of:(const std::string &)keyword
          from:(const std::vector<std::string> &)choices
            by:(NSView *)sender {
  if (chosen >= static_cast<NSInteger>(choices.size()))
    [self option:keyword wantsValueBy:sender];
  else if (chosen >= 0)
    [self option:keyword wasChosen:std::string(choices[chosen]) by:sender];
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

- (void)resolveConflict:(id)sender {
  (void)sender;
  if (!state->proposal || ![dialog savePanels])
    return;
  [[resolve window] makeFirstResponder:nil]; // the button is hidden then; the pane gets the focus
  const ConflictProposal proposal = *state->proposal;
  PrintJob &job = [dialog session].job();
  OptionConflicts(job.printer(), job.settings()).take(proposal);
  [self followAlignment];
  [dialog refresh];
}

@end
