#include "PluginFolders.hpp"

#include "ProgramFolder.hpp"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>

namespace imageposition {

namespace fs = std::filesystem;

namespace {

bool isFolder(const fs::path &path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

std::vector<std::string> withoutRepetition(const std::vector<std::string> &paths) {
  std::vector<std::string> result;
  std::set<std::string> known;
  for (const std::string &path : paths)
    if (known.insert(bundleIdentity(path)).second)
      result.push_back(path);
  return result;
}

std::string fileNameOf(const std::string &path) {
  fs::path name = fs::path(path).lexically_normal();
  return (name.has_filename() ? name : name.parent_path()).filename().string();
}

std::vector<std::string> bundlesNamed(const std::vector<std::string> &paths,
                                      const std::vector<std::string> &folders) {
  std::vector<std::string> bundles;
  for (const std::string &path : paths) {
    const std::string name = fileNameOf(path);
    if (name.empty() || name == "." || name == "..")
      continue;
    const auto folder =
        std::find_if(folders.begin(), folders.end(), [&](const std::string &candidate) {
          return isFolder(fs::path(candidate) / name);
        });
    if (folder != folders.end())
      bundles.push_back((fs::path(*folder) / name).string());
  }
  return bundles;
}

std::vector<std::string> bundlesIn(const std::string &folder) {
  std::vector<std::string> bundles;
  std::error_code ignored;
  for (fs::directory_iterator entry(folder, ignored), end; !ignored && entry != end;
       entry.increment(ignored))
    if (entry->path().extension() == ".plugin" && isFolder(entry->path()))
      bundles.push_back(entry->path().string());
  std::sort(bundles.begin(), bundles.end());
  return bundles;
}

} // namespace

std::vector<std::string> findPlugins(const PluginNames &names,
                                     const std::vector<std::string> &folders) {
  if (!names.fromUser.empty())
    return withoutRepetition(names.fromUser);
  const auto named = bundlesNamed(names.fromPrinter, folders);
  if (!named.empty())
    return withoutRepetition(named);
  for (const std::string &folder : folders) {
    const auto bundles = bundlesIn(folder);
    if (!bundles.empty())
      return withoutRepetition(bundles);
  }
  return {};
}

std::string bundleIdentity(const std::string &path) {
  std::error_code failed;
  const fs::path real = fs::canonical(path, failed);
  return failed ? path : real.string();
}

std::vector<std::string> pluginFolders() {
  std::vector<std::string> folders;
  for (const char *name : {".", IMAGEPOSITION_PLUGINS_FROM_PROGRAM})
    if (const std::string folder = besideProgram(name); !folder.empty())
      folders.push_back(folder);
  folders.emplace_back(IMAGEPOSITION_PLUGIN_FOLDER);
  return folders;
}

} // namespace imageposition
