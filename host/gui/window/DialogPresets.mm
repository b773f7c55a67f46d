#import "DialogController.h"
#import "DialogState.h"
#include "ExitCode.hpp"
#import "NamePanel.h"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>

using namespace imageposition;

namespace {

std::string printerOf(const std::string &queue) { return queue.substr(0, queue.find('/')); }

void addItem(NSMenu *menu, const std::string &title, bool enabled = true) {
  [[menu addItemWithTitle:toString(title) action:nullptr keyEquivalent:@""] setEnabled:enabled];
}

std::string joined(const std::vector<std::string> &sentences) {
  std::string text;
  for (const std::string &sentence : sentences)
    text += (text.empty() ? "" : " ") + sentence;
  return text;
}

} // namespace

@interface DialogController (PresetsInside)
- (void)loadPreset:(const PresetName &)preset;
- (void)savePreset;
- (void)renamePreset;
- (void)deletePreset;
@end

/// The pop-up: none; this printer's; the other printers'; save, rename, delete.
@implementation DialogController (Presets)

- (void)listPresets {
  state->presets.clear();
  [views.presets removeAllItems];
  NSMenu *const menu = [views.presets menu];
  addItem(menu, messages::kNoPresetChosen);
  [views.presets selectItemAtIndex:0];
  [views.presets setEnabled:!session->job().queue().empty()];
  if (session->job().queue().empty())
    return;
  const std::string printer = printerOf(session->job().queue());
  try {
    const Presets presets(printer);
    for (const std::string &name : presets.names())
      state->presets.push_back({printer, name});
    for (const PresetName &other : presets.ofOtherPrinters())
      state->presets.push_back(other);
  } catch (const Failure &failure) {
    [self say:failure.what()];
  }
  // The platform takes seconds for a menu of a hundred thousand items.
  constexpr std::size_t kMostPresets = 1000;
  const std::size_t unlisted =
      state->presets.size() - std::min(state->presets.size(), kMostPresets);
  state->presets.resize(state->presets.size() - unlisted);
  bool isChosen = false;
  for (const PresetName &preset : state->presets) {
    const bool isOwn = preset.printer == printer;
    addItem(menu, isOwn ? preset.name : preset.printer + "/" + preset.name);
    if (isOwn && preset.name == state->preset) {
      isChosen = true;
      [views.presets selectItemAtIndex:[views.presets numberOfItems] - 1];
    }
  }
  addItem(menu, messages::kSavePreset);
  addItem(menu, messages::kRenamePreset, isChosen);
  addItem(menu, messages::kDeletePreset, isChosen);
  if (unlisted > 0)
    addItem(menu, messages::presetsNotListed(unlisted), false);
}

- (void)presetChosen:(id)sender {
  [self takeFocus:sender];
  const auto chosen = static_cast<std::size_t>([views.presets indexOfSelectedItem]);
  const std::size_t count = state->presets.size();
  try {
    if (chosen == 0)
      state->preset.clear();
    else if (chosen <= count)
      [self loadPreset:PresetName(state->presets[chosen - 1])];
    else if (chosen == count + 1)
      [self savePreset];
    else if (chosen == count + 2)
      [self renamePreset];
    else
      [self deletePreset];
  } catch (const Failure &failure) {
    [self say:failure.what()];
  }
  [self listPresets];
  [views.window makeFirstResponder:views.presets];
}

/// The panels' values are among the settings; they read them anew.
- (void)loadPreset:(const PresetName &)preset {
  const LoadedPreset loaded = Presets::load(preset, session->job().printer());
  session->job().settings() = loaded.settings;
  session->panels().takePlainNumbers();
  session->job().printer().mark(session->job().settings());
  [self restorePanels];
  state->preset = preset.printer == printerOf(session->job().queue()) ? preset.name : "";
  [self refresh];
  [self showChosenPane];
  [self say:joined(loaded.misfits)];
}

- (void)savePreset {
  if (![self takeEntries] || ![self savePanels])
    return;
  const auto typed = askForName(views.window, messages::kPresetNameQuestion, state->preset);
  if (!typed)
    return;
  const std::string name = Presets::usableName(*typed);
  const std::string printer = printerOf(session->job().queue());
  const auto missing =
      Presets(printer).save(name, session->job().settings(), session->job().printer().ppd());
  state->preset = name;
  const std::string saved = messages::presetSaved(printer + "/" + name);
  if (missing.empty())
    [views.message setStringValue:toString(saved)];
  else
    [self say:saved + " " + joined(missing)];
}

- (void)renamePreset {
  const auto typed = askForName(views.window, messages::kPresetNameQuestion, state->preset);
  if (!typed || state->preset.empty())
    return;
  const std::string name = Presets::usableName(*typed);
  Presets(printerOf(session->job().queue())).rename(state->preset, name);
  state->preset = name;
}

- (void)deletePreset {
  if (state->preset.empty())
    return;
  Presets(printerOf(session->job().queue())).remove(state->preset);
  state->preset.clear();
}

@end
