#include "JobStart.hpp"

#include "CustomValue.hpp"
#include "ExitCode.hpp"
#include "GivenSettings.hpp"
#include "JobSettings.hpp"
#include "JobSplit.hpp"
#include "QueueName.hpp"
#include "Strings.hpp"
#include "ValueCheck.hpp"

#include <algorithm>
#include <cstring>
#include <iostream>
#include <utility>

namespace imageposition {

namespace {

/// Settings that apply to one job only, in addition to those of one document, which no preset has.
bool isOfOneJob(const std::string &name) {
  static const std::vector<std::string> kNames{"copies", "job-hold-until", "job-priority",
                                               "notify-recipient-uri"};
  return contains(kNames, name);
}

/// The settings that the printer accepts, without complaint: the user did not enter them here.
PrintSettingsStore fitted(const PrintSettingsStore &settings, ppd_file_t *ppd) {
  PrintSettingsStore fitting;
  for (int i = 0; i < settings.optionCount(); i++) {
    const cups_option_t &option = settings.options()[i];
    if (const auto value = fitSetting(ppd, option.name, option.value, true).value)
      fitting.set(option.name, *value);
  }
  return fitting;
}

bool isSameIn(const PrintSettingsStore &left, const PrintSettingsStore &right, const char *name) {
  const char *const one = left.get(name);
  const char *const other = right.get(name);
  return one == nullptr || other == nullptr ? one == other : std::strcmp(one, other) == 0;
}

/// Whether a setting is not the printer's default. Panels add settings that are off or zero.
bool hasUnusual(const PrintSettingsStore &settings, PrinterDescription &printer) {
  const auto &defaults = printer.defaultChoices();
  for (int i = 0; i < settings.optionCount(); i++) {
    const cups_option_t &option = settings.options()[i];
    const auto usual = defaults.find(option.name);
    if (usual != defaults.end() ? usual->second != option.value : !isOff(option.value))
      return true;
  }
  return false;
}

/// Whether the setting is as it was at the start. Panels add settings that are off or zero.
bool isUntouched(const PrintSettingsStore &start, const PrintSettingsStore &now, const char *name) {
  const char *const value = now.get(name);
  const bool isAdded = start.get(name) == nullptr && value != nullptr;
  return isSameIn(start, now, name) || (isAdded && isOff(value));
}

} // namespace

JobStart::JobStart(const Arguments &arguments, const OpenedPrinter &printer, History history)
    : arguments_(arguments), printer_(printer), history_(std::move(history)), preset_(load()) {
  const std::string remembered = rememberedQueue(arguments, history_);
  if (remembered != QueueName::parse(printer.queue).printer)
    missingPrinter_ = remembered;
}

/// Of the preset that the queue or the history names, or of the last job. A preset is an instance
/// of the queue. Its settings join the job's, where panels see them.
LoadedPreset JobStart::load() {
  const QueueName name = QueueName::parse(printer_.queue);
  const Presets presets(name.printer);
  presetName_ = name.instance;
  if (printer_.queue.empty() || !arguments_.prepared.empty())
    return {};
  if (presetName_.empty()) {
    const std::string usual = history_.preset(name.printer);
    if (usual.empty() || !contains(presets.names(), usual)) {
      LoadedPreset last{fitted(history_.settings(name.printer), printer_.printer->ppd()), {}};
      isFromLastJob_ = hasUnusual(last.settings, *printer_.printer);
      return last;
    }
    presetName_ = usual;
  }
  LoadedPreset preset = presets.load(presetName_, *printer_.printer);
  for (const std::string &misfit : preset.misfits)
    std::cerr << misfit << '\n';
  return preset;
}

Ticket JobStart::openTicket() {
  ppd_file_t *const ppd = printer_.printer->ppd();
  Ticket ticket = givenTicket(arguments_, ppd, preset_.settings);
  withoutPreset_ = preset_.settings.optionCount() == 0 ? ticket.settings
                                                       : givenTicket(arguments_, ppd, {}).settings;
  return ticket;
}

void JobStart::begin(const PrintSettingsStore &settings,
                     const std::optional<SideOffsets> &measured) {
  if (measured)
    setSideOffsets(withoutPreset_, *measured);
  atStart_ = settings;
  for (int i = 0; i < preset_.settings.optionCount(); i++)
    if (const char *const name = preset_.settings.options()[i].name;
        withoutPreset_.get(name) == nullptr)
      taken_.emplace_back(name);
}

bool JobStart::takeHistory(PrintSettingsStore &settings) {
  const PrintSettingsStore before = settings;
  bool isTaken = false;
  for (const std::string &name : std::exchange(taken_, {}))
    if (isUntouched(atStart_, settings, name.c_str())) {
      settings.remove(name);
      atStart_.remove(name);
    }
  PrintSettingsStore remembered;
  try {
    remembered = load().settings;
  } catch (const Failure &failure) { // the presets cannot be read, as their pop-up says, too
    std::cerr << failure.what() << '\n';
  }
  for (int i = 0; i < remembered.optionCount(); i++) {
    const cups_option_t &option = remembered.options()[i];
    if (!isUntouched(atStart_, settings, option.name))
      continue;
    isTaken = isTaken || !isSameIn(before, remembered, option.name);
    settings.set(option.name, option.value);
    atStart_.set(option.name, option.value);
    taken_.emplace_back(option.name);
  }
  return isTaken;
}

/// A preset has offsets of 0 when it was saved without any.
bool JobStart::hasOffsets() const {
  const PrintSettingsStore given = givenTicket(arguments_, printer_.printer->ppd(), {}).settings;
  const std::vector<std::string> &names = offsetOptions();
  return std::any_of(names.begin(), names.end(),
                     [&](const std::string &name) { return given.get(name) != nullptr; }) ||
         (!presetName_.empty() && !(sideOffsetsIn(preset_.settings) == SideOffsets()));
}

bool JobStart::makeDefault(const std::string &preset) {
  const std::string printer = QueueName::parse(printer_.queue).printer;
  const auto change = [&](History &history) { history.setPreset(printer, preset); };
  if (!changeHistory(change, std::cerr))
    return false;
  change(history_);
  return true;
}

std::string JobStart::defaultPreset() const {
  return history_.preset(QueueName::parse(printer_.queue).printer);
}

void JobStart::remember(const PrintSettingsStore &settings, const std::vector<std::string> &leftOut,
                        const std::optional<WindowSize> &window) const {
  const std::string printer = QueueName::parse(printer_.queue).printer;
  const auto change = [&](History &history) {
    history.setPrinter(printer);
    history.setSettings(printer, toRemember(settings, leftOut));
    if (window)
      history.setWindow(*window);
  };
  changeHistory(change, std::cerr);
}

PrintSettingsStore JobStart::toRemember(const PrintSettingsStore &job,
                                        const std::vector<std::string> &leftOut) const {
  ppd_file_t *const ppd = printer_.printer->ppd();
  const PrintSettingsStore given = givenSettings(arguments_, ppd);
  PrintSettingsStore kept;
  const PrintSettingsStore settings = Presets::withDocumentOf({}, job);
  for (int i = 0; i < settings.optionCount(); i++) {
    const cups_option_t &option = settings.options()[i];
    const bool isGiven =
        given.get(option.name) != nullptr && isSameIn(given, settings, option.name);
    if (!isGiven && !contains(leftOut, option.name) && !isOfOneJob(option.name) &&
        !isLayoutSetting(*printer_.printer, option.name) &&
        !isHiddenValue(ppd, option.name, option.value))
      kept.set(option.name, option.value);
  }
  return kept;
}

} // namespace imageposition
