#include "OutputName.hpp"

#include "Strings.hpp"

#include <filesystem>

namespace imageposition {

std::string suggestedOutput(const std::vector<std::string> &documents, const std::string &ending) {
  std::string name;
  if (!documents.empty() && documents.front() != "-")
    name = std::filesystem::path(documents.front()).stem().string();
  return (name.empty() ? "job" : name) + ending;
}

std::string outputPath(const std::string &typed, const std::string &home,
                       const std::string &ending) {
  std::string path = trimmed(typed, " \t\r\n");
  if (startsWith(path, "~/") && !home.empty())
    path = home + path.substr(1);
  if (path.empty() || path.back() == '/' || std::filesystem::path(path).has_extension())
    return path;
  return path + ending.substr(ending.rfind('.'));
}

} // namespace imageposition
