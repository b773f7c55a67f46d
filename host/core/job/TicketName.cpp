#include "TicketName.hpp"

#include <filesystem>

namespace imageposition {

namespace {

constexpr const char *kEnding = ".json";

std::string withoutBlanks(const std::string &text) {
  constexpr const char *kBlanks = " \t\r\n";
  const std::size_t first = text.find_first_not_of(kBlanks);
  return first == std::string::npos
             ? ""
             : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

} // namespace

std::string suggestedTicket(const std::vector<std::string> &documents) {
  std::string name;
  if (!documents.empty() && documents.front() != "-")
    name = std::filesystem::path(documents.front()).stem().string();
  return (name.empty() ? "job" : name) + kEnding;
}

std::string ticketPath(const std::string &typed, const std::string &home) {
  std::string path = withoutBlanks(typed);
  if (path.compare(0, 2, "~/") == 0 && !home.empty())
    path = home + path.substr(1);
  if (path.empty() || path.back() == '/' || std::filesystem::path(path).has_extension())
    return path;
  return path + kEnding;
}

} // namespace imageposition
