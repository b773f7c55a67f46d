#include "host/OptionText.hpp"

#include "host/ExitCode.hpp"
#include "host/Messages.hpp"

namespace imageposition {

namespace {

bool needsQuotes(const std::string &value) {
  return value.empty() || value.find_first_of(" \t\r\n\f\v\"'\\{},") != std::string::npos;
}

std::string quoted(const std::string &value) {
  std::string text = "\"";
  for (const char c : value) {
    if (c == '"' || c == '\\')
      text += '\\';
    text += c;
  }
  return text + '"';
}

} // namespace

std::string writeOptionArgument(const std::string &name, const std::string &value) {
  return name + '=' + (needsQuotes(value) ? quoted(value) : value);
}

std::string writeOptionText(const PrintSettingsStore &settings) {
  std::string text;
  for (int i = 0; i < settings.optionCount(); i++) {
    const cups_option_t &option = settings.options()[i];
    text += writeOptionArgument(option.name, option.value) + '\n';
  }
  return text;
}

void readOptionArgument(const std::string &argument, PrintSettingsStore &settings) {
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(argument.c_str(), 0, &options);
  auto outcome =
      count > 0 ? PrintSettingsStore::Outcome::Stored : PrintSettingsStore::Outcome::BadName;
  std::string name = argument;
  for (int i = 0; i < count && outcome == PrintSettingsStore::Outcome::Stored; i++) {
    name = options[i].name;
    outcome = settings.set(name, options[i].value);
  }
  cupsFreeOptions(count, options);
  if (outcome == PrintSettingsStore::Outcome::Locked)
    throw Failure(ExitCode::Usage, messages::optionLocked(name));
  if (outcome != PrintSettingsStore::Outcome::Stored)
    throw Failure(ExitCode::Usage, messages::usage(messages::badOption(name)));
}

} // namespace imageposition
