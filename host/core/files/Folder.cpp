#include "Folder.hpp"

#include "FileContent.hpp"
#include "Strings.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace imageposition {

namespace {

namespace fs = std::filesystem;

bool isBefore(const FolderEntry &left, const FolderEntry &right) {
  if (left.isFolder != right.isFolder)
    return left.isFolder;
  if (isSame(left.name, right.name))
    return left.name < right.name;
  return IgnoringCase()(left.name, right.name);
}

} // namespace

std::vector<FolderEntry> contentOfFolder(const std::string &path) {
  std::vector<FolderEntry> entries;
  std::error_code error;
  for (fs::directory_iterator at(path, error), end; !error && at != end; at.increment(error)) {
    std::error_code ignored; // a link that leads nowhere
    const std::string name = at->path().filename().string();
    const bool isFolder = at->is_directory(ignored);
    if (name.front() != '.' && (isFolder || at->is_regular_file(ignored)))
      entries.push_back({name, isFolder});
  }
  if (error)
    throw FileTrouble(error.value());
  std::sort(entries.begin(), entries.end(), isBefore);
  return entries;
}

std::string pathFrom(const std::string &folder, const std::string &typed, const std::string &home) {
  std::string path = trimmed(typed, " \t\r\n");
  if (path.empty())
    return {};
  if (!home.empty() && (path == "~" || startsWith(path, "~/")))
    path = home + path.substr(1);
  const fs::path normal = (fs::path(folder) / path).lexically_normal();
  const bool endsInSlash = !normal.has_filename() && normal.has_relative_path();
  return (endsInSlash ? normal.parent_path() : normal).string();
}

} // namespace imageposition
