#include "BatchRequest.hpp"

namespace imageposition {

std::optional<Entry> readEntry(std::string_view argument) {
  const std::size_t equals = argument.find('=');
  if (equals == 0 || equals == std::string_view::npos)
    return std::nullopt;
  return Entry{std::string(argument.substr(0, equals)), std::string(argument.substr(equals + 1))};
}

std::optional<bool> readSwitch(std::string_view argument) {
  if (argument == "on")
    return true;
  if (argument == "off")
    return false;
  return std::nullopt;
}

} // namespace imageposition
