#include "UserFile.hpp"

#include "FileLock.hpp"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>

namespace imageposition {

namespace {

/// XDG ignores relative paths.
std::string programFolder(const char *variable, const char *belowHome) {
  const char *const chosen = std::getenv(variable);
  const char *const home = std::getenv("HOME");
  std::string base;
  if (chosen != nullptr && *chosen == '/')
    base = chosen;
  else if (home != nullptr && *home != '\0')
    base = std::string(home) + belowHome;
  return base.empty() ? base : base + "/print-dialog";
}

/// With XDG's permissions for folders that are missing.
void makeFolder(const std::string &path) {
  const std::string parent = std::filesystem::path(path).parent_path().string();
  if (mkdir(path.c_str(), 0700) == 0 || errno == EEXIST)
    return;
  if (errno != ENOENT || parent == path)
    throw FileTrouble(errno);
  makeFolder(parent);
  if (mkdir(path.c_str(), 0700) != 0 && errno != EEXIST)
    throw FileTrouble(errno);
}

} // namespace

std::string stateFolder() { return programFolder("XDG_STATE_HOME", "/.local/state"); }

std::string configurationFolder() { return programFolder("XDG_CONFIG_HOME", "/.config"); }

void changeUserFile(const std::string &path,
                    const std::function<std::string(const std::optional<std::string> &)> &change,
                    ContentCheck isOurs) {
  makeFolder(std::filesystem::path(path).parent_path().string());
  const FileLock lock(path + ".lock");
  FileReplacement(path, change(contentOfFile(path)), Readers::OwnerAlone, isOurs).commit();
}

} // namespace imageposition
