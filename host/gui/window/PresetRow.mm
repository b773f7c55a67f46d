#import "PresetRow.h"

#include "ExitCode.hpp"
#include "ImageShiftText.hpp"
#include "Measurement.hpp"
#import "NamePanel.h"
#import "NotePanel.h"
#include "Phrases.hpp"
#include "QuestionTexts.hpp"
#include "QueueName.hpp"
#include "Strings.hpp"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>

using namespace imageposition;

struct imageposition::PresetRowState {
  std::vector<PresetName> presets; // in the order of the pop-up
  std::string chosen;              // this printer's preset; may be empty
};

namespace {

/// GNUstep takes seconds for a menu of a hundred thousand items.
constexpr std::size_t kMostPresets = 1000;

/// This printer's first.
std::vector<PresetName> presetsFor(const std::string &printer) {
  const Presets presets(printer);
  std::vector<PresetName> all;
  for (const std::string &name : presets.names())
    all.push_back({printer, name});
  for (const PresetName &other : presets.ofOtherPrinters())
    all.push_back(other);
  return all;
}

} // namespace

@interface PresetRow ()
- (std::string)printer;
/// Selects the chosen preset, or else none. Whether it is listed.
- (BOOL)showChosen;
- (void)presetChosen:(id)sender;
- (void)choose:(std::size_t)item;
- (void)load:(const PresetName &)preset;
- (void)takeNone;
- (void)take:(const LoadedPreset &)loaded saying:(const std::string &)sentence;
- (std::string)suggestion;
/// Asks for a name, and before it replaces another preset than `old`. Returns a usable name.
- (std::optional<std::string>)askForNameInsteadOf:(const std::string &)old
                                       suggestion:(const std::string &)suggestion;
- (void)save;
- (void)rename;
- (void)remove;
- (void)makeDefault;
@end

@implementation PresetRow

- (id)initWithDialog:(id<DialogServices>)theDialog {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  state = new PresetRowState;
  state->chosen = [dialog session].job().start().presetName();
  popUp = [makePopUp(self, @selector(presetChosen:)) retain];
  return self;
}

- (void)dealloc {
  [popUp setTarget:nil];
  [popUp release];
  delete state;
  [super dealloc];
}

- (DialogRow)row {
  return {messages::kPresetsRow, {{popUp}}};
}

- (void)printerChanged {
  state->chosen = [dialog session].job().start().presetName();
  [self list];
}

- (std::string)printer {
  return QueueName::parse([dialog session].job().queue()).printer;
}

- (void)list {
  const std::string printer = [self printer];
  state->presets.clear();
  [popUp removeAllItems];
  addItem(popUp, messages::kNoPresetChosen);
  [popUp selectItemAtIndex:0];
  [popUp setEnabled:!printer.empty()];
  if (printer.empty())
    return;
  try {
    state->presets = presetsFor(printer);
  } catch (const Failure &failure) {
    [dialog say:failure.what()];
  }
  const std::size_t listed = std::min(state->presets.size(), kMostPresets);
  const std::size_t unlisted = state->presets.size() - listed;
  state->presets.resize(listed);
  for (const PresetName &preset : state->presets)
    addItem(popUp, preset.printer == printer ? preset.name : preset.printer + "/" + preset.name);
  const bool isChosen = [self showChosen];
  addCommand(popUp, messages::kSavePreset);
  addCommand(popUp, messages::kRenamePreset, isChosen);
  addCommand(popUp, messages::kDeletePreset, isChosen);
  const bool isDefault =
      isChosen && isSame([dialog session].job().start().defaultPreset(), state->chosen);
  addCommand(popUp, isDefault ? messages::kNotDefaultPreset : messages::kDefaultPreset, isChosen);
  if (unlisted > 0)
    addItem(popUp, messages::presetsNotListed(unlisted), false);
}

- (BOOL)showChosen {
  const std::string printer = [self printer];
  [popUp selectItemAtIndex:0];
  for (std::size_t i = 0; i < state->presets.size(); i++) {
    const PresetName &preset = state->presets[i];
    if (preset.printer != printer || preset.name != state->chosen)
      continue;
    [popUp selectItemAtIndex:static_cast<NSInteger>(i) + 1];
    return YES;
  }
  return NO;
}

- (void)presetChosen:(id)sender {
  [(KeyWindow *)[sender window] focus:popUp];
  try {
    const auto item = static_cast<std::size_t>([popUp indexOfSelectedItem]);
    if (item > state->presets.size())
      [self showChosen]; // the question comes over it
    [self choose:item];
  } catch (const Failure &failure) {
    [dialog say:failure.what()];
  }
  [self list];
  [[popUp window] makeFirstResponder:popUp];
}

- (void)choose:(std::size_t)item {
  const std::size_t count = state->presets.size();
  if (item == 0)
    [self takeNone];
  else if (item <= count)
    [self load:PresetName(state->presets[item - 1])];
  else if (item == count + 1)
    [self save];
  else if (item == count + 2)
    [self rename];
  else if (item == count + 3)
    [self remove];
  else
    [self makeDefault];
}

- (void)load:(const PresetName &)preset {
  PrintSession &session = [dialog session];
  const LoadedPreset loaded =
      Presets::load(preset, session.job().printer(), session.panels().optionKeys());
  state->chosen = preset.printer == [self printer] ? preset.name : "";
  [self take:loaded saying:""];
}

- (void)takeNone {
  state->chosen.clear();
  LoadedPreset none;
  none.settings = [dialog session].job().start().settingsWithoutPreset();
  [self take:none saying:messages::kPrintersDefaults];
}

/// The panels' values are among the settings, so that the panels read them anew. What applies to
/// this document alone stays.
- (void)take:(const LoadedPreset &)loaded saying:(const std::string &)sentence {
  PrintSession &session = [dialog session];
  PrintJob &job = session.job();
  if (QueueName::parse(job.queue()).instance != state->chosen)
    job.leavePreset();
  job.settings() = Presets::withDocumentOf(job.settings(), loaded.settings);
  session.panels().takePanelValues();
  const PrintSettingsStore given = job.settings();
  job.printer().mark(job.settings());
  const PanelReplies replies = session.panels().restore();
  [dialog refresh];
  if (![dialog savePanels])
    return;
  const auto changes =
      adjustments(job.printer().ppd(), session.panels().optionKeys(), given, job.settings());
  std::vector<std::string> notes{sentence};
  for (const auto *sentences : {&replies.failures, &replies.refusals, &loaded.misfits, &changes})
    notes.insert(notes.end(), sentences->begin(), sentences->end());
  [dialog say:messages::sentences(notes)];
}

/// The chosen preset's name, or one that does not exist yet.
- (std::string)suggestion {
  if (!state->chosen.empty())
    return state->chosen;
  const std::vector<std::string> names = Presets([self printer]).names();
  std::size_t number = 1;
  while (contains(names, messages::presetSuggestion(number)))
    number++;
  return messages::presetSuggestion(number);
}

- (std::optional<std::string>)askForNameInsteadOf:(const std::string &)old
                                       suggestion:(const std::string &)suggestion {
  const std::vector<std::string> names = Presets([self printer]).names();
  const auto mayTake = [&](NSWindow *window, const std::string &typed) {
    try {
      const std::string name = Presets::usableName(typed);
      return isSame(name, old) || !contains(names, name) || mayReplace(window, name);
    } catch (const Failure &failure) {
      showNote(window, messages::kPresetNameWindow, failure.what());
      return false;
    }
  };
  const auto typed = askForName(
      [popUp window], { messages::kPresetNameWindow, messages::kPresetNameQuestion, suggestion },
      mayTake);
  return typed ? std::optional(Presets::usableName(*typed)) : std::nullopt;
}

- (void)save {
  if (![dialog takeEntries])
    return;
  const auto name = [self askForNameInsteadOf:"" suggestion:[self suggestion]];
  if (!name)
    return;
  PrintJob &job = [dialog session].job();
  const auto missing = Presets([self printer]).save(*name, job.settings(), job.printer().ppd());
  state->chosen = *name;
  const bool isMovedHere =
      isImageShiftAdded(job.printer().ppd()) && !(sideOffsetsIn(job.settings()) == SideOffsets());
  const std::string saved =
      messages::presetSaved(QueueName{[self printer], *name}.text(), isMovedHere);
  if (missing.empty())
    [dialog show:saved];
  else
    [dialog say:saved + " " + messages::sentences(missing)];
}

- (void)rename {
  if (state->chosen.empty())
    return;
  const Presets presets([self printer]);
  const std::vector<std::string> names = presets.names(); // another may come up meanwhile
  const auto name = [self askForNameInsteadOf:state->chosen suggestion:state->chosen];
  if (!name)
    return;
  presets.rename(state->chosen, *name, contains(names, *name));
  PrintJob &job = [dialog session].job();
  if (isSame(job.start().defaultPreset(), state->chosen))
    job.start().makeDefault(*name);
  state->chosen = *name;
  [dialog show:""];
}

- (void)makeDefault {
  if (state->chosen.empty())
    return;
  PrintJob &job = [dialog session].job();
  const bool isDefault = isSame(job.start().defaultPreset(), state->chosen);
  if (!job.start().makeDefault(isDefault ? "" : state->chosen))
    [dialog show:messages::kDefaultNotStored];
  else
    [dialog show:isDefault ? "" : messages::presetIsDefault(state->chosen, [self printer])];
}

- (void)remove {
  if (state->chosen.empty())
    return;
  const Proposal question{messages::kDelete, messages::deleteQuestion(state->chosen),
                          messages::kDelete, messages::kCancel, true};
  if (!isConfirmed([popUp window], question))
    return;
  Presets([self printer]).remove(state->chosen);
  state->chosen.clear();
  [dialog show:""];
}

@end
