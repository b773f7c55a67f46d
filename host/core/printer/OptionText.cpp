#include "OptionText.hpp"

#include "ExitCode.hpp"
#include "PrinterTexts.hpp"

#include <algorithm>
#include <cctype>
#include <optional>

namespace imageposition {

namespace {

/// Whether the character is literal to CUPS and to a shell anywhere in a value.
bool isPlain(char c) {
  constexpr std::string_view kPlain = "%+-./:=@_";
  const bool isAscii = static_cast<unsigned char>(c) < 0x80;
  return !isAscii || std::isalnum(static_cast<unsigned char>(c)) != 0 ||
         kPlain.find(c) != std::string_view::npos;
}

bool needsQuotes(const std::string &value) {
  return value.empty() || !std::all_of(value.begin(), value.end(), isPlain);
}

std::string quoted(const std::string &value) {
  std::string text = "\"";
  for (const char c : value) {
    if (c == '"' || c == '\\' || c == '$' || c == '`')
      text += '\\';
    text += c;
  }
  return text + '"';
}

/// The end of the value at the start of `text`; none if its quotes are not closed.
std::optional<std::size_t> endOfValue(std::string_view text) {
  if (text.empty() || text.front() != '"')
    return std::find_if_not(text.begin(), text.end(), isPlain) - text.begin();
  for (std::size_t i = 1; i < text.size(); i++)
    if (text[i] == '\\')
      i++;
    else if (text[i] == '"')
      return i + 1;
  return std::nullopt;
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

bool isOptionText(std::string_view text) {
  while (!text.empty()) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos ||
        !PrintSettingsStore::isUsableName(text.substr(0, equals)))
      return false;
    text.remove_prefix(equals + 1);
    const auto end = endOfValue(text);
    if (!end || *end == 0 || *end >= text.size() || text[*end] != '\n')
      return false;
    text.remove_prefix(*end + 1);
  }
  return true;
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
