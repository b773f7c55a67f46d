#include "TicketName.hpp"

#include "Strings.hpp"

#include <filesystem>

namespace imageposition {

namespace {

constexpr const char *kExtension = ".json";

} // namespace

std::string suggestedTicket(const std::vector<std::string> &documents) {
  std::string name;
  if (!documents.empty() && documents.front() != "-")
    name = std::filesystem::path(documents.front()).stem().string();
  return (name.empty() ? "job" : name) + kExtension;
}

std::string ticketPath(const std::string &typed, const std::string &home) {
  std::string path = trimmed(typed, " \t\r\n");
  if (startsWith(path, "~/") && !home.empty())
    path = home + path.substr(1);
  if (path.empty() || path.back() == '/' || std::filesystem::path(path).has_extension())
    return path;
  return path + kExtension;
}

} // namespace imageposition
