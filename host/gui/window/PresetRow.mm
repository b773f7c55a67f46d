#import "PresetRow.h"

#include "ExitCode.hpp"
#import "NamePanel.h"
#include "Phrases.hpp"
#include "QueueName.hpp"
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
- (void)presetChosen:(id)sender;
- (void)choose:(std::size_t)item;
- (void)load:(const PresetName &)preset;
- (void)save;
- (void)rename;
- (void)remove;
@end

@implementation PresetRow

- (id)initWithDialog:(id<DialogServices>)theDialog {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  state = new PresetRowState;
  state->chosen = QueueName::parse([dialog session].job().queue()).instance;
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
  state->chosen.clear();
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
  bool isChosen = false;
  for (const PresetName &preset : state->presets) {
    const bool isOwn = preset.printer == printer;
    addItem(popUp, isOwn ? preset.name : preset.printer + "/" + preset.name);
    if (isOwn && preset.name == state->chosen) {
      isChosen = true;
      [popUp selectItemAtIndex:[popUp numberOfItems] - 1];
    }
  }
  addCommand(popUp, messages::kSavePreset);
  addCommand(popUp, messages::kRenamePreset, isChosen);
  addCommand(popUp, messages::kDeletePreset, isChosen);
  if (unlisted > 0)
    addItem(popUp, messages::presetsNotListed(unlisted), false);
}

- (void)presetChosen:(id)sender {
  [(KeyWindow *)[sender window] focus:popUp];
  try {
    [self choose:static_cast<std::size_t>([popUp indexOfSelectedItem])];
  } catch (const Failure &failure) {
    [dialog say:failure.what()];
  }
  [self list];
  [[popUp window] makeFirstResponder:popUp];
}

- (void)choose:(std::size_t)item {
  const std::size_t count = state->presets.size();
  if (item == 0)
    state->chosen.clear();
  else if (item <= count)
    [self load:PresetName(state->presets[item - 1])];
  else if (item == count + 1)
    [self save];
  else if (item == count + 2)
    [self rename];
  else
    [self remove];
}

/// The panels' values are among the settings, so that the panels read them anew.
- (void)load:(const PresetName &)preset {
  PrintSession &session = [dialog session];
  PrintJob &job = session.job();
  const std::vector<std::string> keys = session.panels().optionKeys();
  const LoadedPreset loaded = Presets::load(preset, job.printer(), keys);
  job.settings() = loaded.settings;
  session.panels().takePanelValues();
  const PrintSettingsStore given = job.settings();
  job.printer().mark(job.settings());
  const PanelReplies replies = session.panels().restore();
  state->chosen = preset.printer == [self printer] ? preset.name : "";
  [dialog refresh];
  if (![dialog savePanels])
    return;
  const auto changes = adjustments(job.printer().ppd(), keys, given, job.settings());
  std::vector<std::string> notes;
  for (const auto *sentences : {&replies.failures, &replies.refusals, &loaded.misfits, &changes})
    notes.insert(notes.end(), sentences->begin(), sentences->end());
  [dialog say:messages::sentences(notes)];
}

- (void)save {
  if (![dialog takeEntries])
    return;
  const auto typed = askForName([popUp window], messages::kPresetNameQuestion, state -> chosen);
  if (!typed)
    return;
  PrintJob &job = [dialog session].job();
  const std::string name = Presets::usableName(*typed);
  const auto missing = Presets([self printer]).save(name, job.settings(), job.printer().ppd());
  state->chosen = name;
  const std::string saved = messages::presetSaved(QueueName{[self printer], name}.text());
  if (missing.empty())
    [dialog show:saved];
  else
    [dialog say:saved + " " + messages::sentences(missing)];
}

- (void)rename {
  const auto typed = askForName([popUp window], messages::kPresetNameQuestion, state -> chosen);
  if (!typed || state->chosen.empty())
    return;
  const std::string name = Presets::usableName(*typed);
  Presets([self printer]).rename(state->chosen, name);
  state->chosen = name;
}

- (void)remove {
  if (state->chosen.empty())
    return;
  Presets([self printer]).remove(state->chosen);
  state->chosen.clear();
}

@end
