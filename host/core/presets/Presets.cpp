#include "Presets.hpp"

#include "CustomValue.hpp"
#include "DestinationFile.hpp"
#include "ExitCode.hpp"
#include "FileLock.hpp"
#include "FileReplacement.hpp"
#include "ForeignText.hpp"
#include "OptionText.hpp"
#include "Phrases.hpp"
#include "PresetTexts.hpp"
#include "Strings.hpp"
#include "ValueCheck.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <pwd.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace imageposition {

namespace {

constexpr std::size_t kLongestName = 127;

/// Settings that apply to a single document or job.
constexpr const char *kNotKept[] = {"document-format", "document-name", "job-name",
                                    "page-ranges",     "page-set",      "preset-name"};

/// CUPS drops a destination without options. This IPP attribute keeps a preset that equals the
/// printer's defaults.
constexpr const char *kPlaceholder = "preset-name";

std::string sharedPath() {
  const char *const root = std::getenv("CUPS_SERVERROOT");
  return std::string(root != nullptr && *root != '\0' ? root : "/etc/cups") + "/lpoptions";
}

/// Empty for a user without a home directory, whose presets are the shared ones.
std::string ownFolder() {
  const char *home = std::getenv("HOME");
  if (home == nullptr) {
    const passwd *const user = getpwuid(getuid());
    home = user != nullptr ? user->pw_dir : nullptr;
  }
  return home != nullptr ? std::string(home) + "/.cups" : "";
}

std::string ownPath() {
  const std::string folder = ownFolder();
  return folder.empty() ? sharedPath() : folder + "/lpoptions";
}

std::string contentOf(const std::string &path) {
  try {
    return contentOfFile(path).value_or("");
  } catch (const FileTrouble &trouble) {
    if (trouble.error() == ENOTDIR)
      return {};
    throw Failure(ExitCode::Printer, messages::presetsUnreadable(path, trouble.what()));
  }
}

/// Shared entries first, because CUPS lets a user's own override them.
std::vector<DestinationFile::Entry> allEntries() {
  std::vector<DestinationFile::Entry> entries = DestinationFile(contentOf(sharedPath())).entries();
  if (ownPath() != sharedPath())
    for (auto &entry : DestinationFile(contentOf(ownPath())).entries())
      entries.push_back(std::move(entry));
  return entries;
}

[[noreturn]] void failToWrite(const std::string &reason) {
  throw Failure(ExitCode::Printer, messages::presetsUnwritable(ownPath(), reason));
}

/// Held while changing the file, from reading to writing it. Locks a separate file, because the
/// guarded one is replaced.
FileLock lockPresets() {
  const std::string folder = ownFolder();
  if (!folder.empty())
    mkdir(folder.c_str(), 0700); // opening the file reports any error
  try {
    return FileLock(ownPath() + ".lock");
  } catch (const FileTrouble &trouble) {
    failToWrite(trouble.what());
  }
}

/// Reads, changes and writes the file under the lock. lpoptions(1) and CUPS's other programs ignore
/// the lock: if one of them writes meanwhile, tries again with its version.
template <typename Change> void changeFile(Change &&change) {
  const FileLock lock = lockPresets();
  for (;;) {
    const std::string before = contentOf(ownPath());
    DestinationFile file(before);
    change(file);
    const std::string after = file.text();
    if (after == before)
      return;
    try {
      FileReplacement replacement(ownPath(), after);
      if (contentOf(ownPath()) == before) {
        replacement.commit();
        return;
      }
    } catch (const FileTrouble &trouble) {
      failToWrite(trouble.what());
    }
  }
}

bool isKept(const std::string &name) {
  return std::none_of(std::begin(kNotKept), std::end(kNotKept),
                      [&](const char *other) { return isSame(name, other); });
}

/// False if the file's format cannot represent the value. CUPS's programs write an empty value as
/// none.
bool canBeHeld(const std::string &value) {
  return !value.empty() && std::none_of(value.begin(), value.end(), [](char c) {
    return c == '#' || static_cast<unsigned char>(c) < ' ' || c == '\x7F';
  });
}

std::string oneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  while (!text.empty() && text.back() == ' ')
    text.pop_back();
  return text;
}

/// Reads "name" as "true" and "noname" as "false".
void readOptions(const std::string &text, PrintSettingsStore &settings) {
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(text.c_str(), 0, &options);
  for (int i = 0; i < count; i++)
    settings.set(options[i].name, options[i].value); // ignores what no job can hold
  cupsFreeOptions(count, options);
}

} // namespace

Presets::Presets(const std::string &printer) : printer_(QueueName::parse(printer).printer) {}

std::vector<std::string> Presets::names() const {
  std::set<std::string, IgnoringCase> names;
  for (const auto &entry : allEntries())
    if (isSame(entry.queue.printer, printer_) && !entry.queue.instance.empty())
      names.insert(entry.queue.instance);
  return {names.begin(), names.end()};
}

std::vector<PresetName> Presets::ofOtherPrinters() const {
  const auto isBefore = [](const PresetName &a, const PresetName &b) {
    const IgnoringCase isLess;
    return isSame(a.printer, b.printer) ? isLess(a.name, b.name) : isLess(a.printer, b.printer);
  };
  std::set<PresetName, decltype(isBefore)> presets(isBefore);
  for (const auto &entry : allEntries())
    if (!entry.queue.instance.empty() && !isSame(entry.queue.printer, printer_))
      presets.insert({entry.queue.printer, entry.queue.instance});
  return {presets.begin(), presets.end()};
}

std::vector<std::string> Presets::save(const std::string &name, const PrintSettingsStore &settings,
                                       ppd_file_t *ppd) const {
  const std::string usable = usableName(name);
  std::vector<std::string> lost;
  PrintSettingsStore held;
  for (int i = 0; i < settings.optionCount(); i++) {
    const cups_option_t &option = settings.options()[i];
    if (!isKept(option.name))
      continue;
    if (isHiddenValue(ppd, option.name, option.value))
      lost.push_back(messages::presetKeepsNoPassword(option.name));
    else if (canBeHeld(option.value))
      held.set(option.name, option.value);
    else
      lost.push_back(messages::presetCannotHold(option.name, option.value));
  }
  if (held.optionCount() == 0)
    held.set(kPlaceholder, usable);
  const std::string options = oneLine(writeOptionText(held));
  changeFile([&](DestinationFile &file) {
    if (!file.set({printer_, usable}, options))
      throw Failure(ExitCode::Usage, messages::presetTooLarge(usable));
  });
  return lost;
}

void Presets::rename(const std::string &name, const std::string &newName, bool mayReplace) const {
  const std::string usable = usableName(newName);
  changeFile([&](DestinationFile &file) {
    const bool isShared = contains(names(), name);
    if (!file.has({printer_, name}))
      throw Failure(ExitCode::Usage, isShared ? messages::presetIsShared(name, sharedPath())
                                              : messages::presetMissing(printer_, name));
    if (!isSame(name, usable) && contains(names(), usable)) {
      if (!mayReplace)
        throw Failure(ExitCode::Usage, messages::presetExists(printer_, usable));
      file.remove({printer_, usable});
    }
    file.rename({printer_, name}, usable);
  });
}

void Presets::remove(const std::string &name) const {
  changeFile([&](DestinationFile &file) { file.remove({printer_, name}); });
  if (contains(names(), name))
    throw Failure(ExitCode::Usage, messages::presetIsShared(name, sharedPath()));
}

LoadedPreset Presets::load(const std::string &name, const PrinterDescription &printer,
                           const std::vector<std::string> &panelKeywords) const {
  return load(PresetName{printer_, name}, printer, panelKeywords);
}

LoadedPreset Presets::load(const PresetName &preset, const PrinterDescription &printer,
                           const std::vector<std::string> &panelKeywords) {
  bool isFound = false;
  PrintSettingsStore stored;
  for (const auto &entry : allEntries()) {
    if (entry.queue != QueueName{preset.printer, preset.name})
      continue;
    isFound = true;
    readOptions(entry.options, stored);
  }
  if (!isFound)
    throw Failure(ExitCode::Usage, messages::presetMissing(preset.printer, preset.name));
  const bool isOwn = isSame(preset.printer, QueueName::parse(printer.name()).printer);
  LoadedPreset loaded;
  for (int i = 0; i < stored.optionCount(); i++) {
    const cups_option_t &option = stored.options()[i];
    if (isSame(option.name, kPlaceholder))
      continue;
    const FittedSetting fitted = fitSetting(printer.ppd(), option.name, option.value,
                                            isOwn || contains(panelKeywords, option.name));
    if (fitted.value)
      loaded.settings.set(option.name, *fitted.value);
    if (!fitted.change.empty())
      loaded.misfits.push_back(fitted.change);
  }
  return loaded;
}

PrintSettingsStore Presets::withDocumentOf(const PrintSettingsStore &job,
                                           const PrintSettingsStore &settings) {
  PrintSettingsStore all;
  for (const auto &[source, isOfDocument] : {std::pair(&job, true), std::pair(&settings, false)})
    for (int i = 0; i < source->optionCount(); i++) {
      const cups_option_t &option = source->options()[i];
      if (isKept(option.name) != isOfDocument)
        all.set(option.name, option.value);
    }
  return all;
}

std::vector<std::string> adjustments(ppd_file_t *ppd, const std::vector<std::string> &keywords,
                                     const PrintSettingsStore &before,
                                     const PrintSettingsStore &after) {
  std::vector<std::string> sentences;
  for (const std::string &keyword : keywords) {
    const char *const given = before.get(keyword);
    const char *const made = after.get(keyword);
    if (given == nullptr || made == nullptr || std::strcmp(given, made) == 0)
      continue;
    const ppd_option_t *const option = ppdFindOption(ppd, keyword.c_str());
    sentences.push_back(messages::valueAdjusted(
        option != nullptr ? textOrKeyword(option->text, option->keyword) : keyword, given, made));
  }
  return sentences;
}

std::string Presets::usableName(const std::string &typed) {
  constexpr std::string_view kMeaningful = "/#\"'\\";
  if (!PrintSettingsStore::isUsableValue(typed))
    throw Failure(ExitCode::Usage, messages::presetNameUnusable(""));
  std::string name;
  for (const char c : typed) {
    const bool isMeaningful = kMeaningful.find(c) != std::string_view::npos;
    if (static_cast<unsigned char>(c) > ' ' && c != '\x7F' && !isMeaningful)
      name += c;
    else if (!name.empty() && name.back() != '-')
      name += '-';
  }
  while (!name.empty() && name.back() == '-' && typed.back() != '-')
    name.pop_back();
  if (name.empty())
    throw Failure(ExitCode::Usage, messages::presetNameUnusable(typed));
  if (name.size() > kLongestName)
    throw Failure(ExitCode::Usage, messages::presetNameTooLong(kLongestName));
  return name;
}

} // namespace imageposition
