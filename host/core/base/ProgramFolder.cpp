#include "ProgramFolder.hpp"

#include <filesystem>
#include <sys/stat.h>
#include <system_error>

namespace imageposition {

std::string besideProgram(const std::string &name) {
  std::error_code failed;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failed);
  return failed ? std::string() : (program.parent_path() / name).lexically_normal().string();
}

bool isTrustedPart(const std::string &path) {
  struct stat part {
  }, program{};
  if (lstat(path.c_str(), &part) != 0 || stat("/proc/self/exe", &program) != 0)
    return false;
  const bool isOwned = part.st_uid == program.st_uid || part.st_uid == 0;
  return isOwned && (S_ISLNK(part.st_mode) || (part.st_mode & S_IWOTH) == 0);
}

std::string trustedPart(const std::vector<std::string> &paths) {
  std::error_code ignored;
  for (const std::string &path : paths)
    if (!path.empty() && std::filesystem::exists(path, ignored) && isTrustedPart(path))
      return path;
  return {};
}

std::string installedProgram(const std::string &name) {
  return trustedPart(
      {besideProgram(name), besideProgram(IMAGEPOSITION_MODULES_FROM_PROGRAM "/" + name)});
}

} // namespace imageposition
