#include "FileVersion.hpp"

#include <sys/stat.h>

namespace imageposition {

std::string fileVersion(const std::string &path) {
  struct stat file {};
  if (stat(path.c_str(), &file) != 0 || !S_ISREG(file.st_mode))
    return {};
  return std::to_string(file.st_ino) + " " + std::to_string(file.st_size) + " " +
         std::to_string(file.st_mtim.tv_sec) + "." + std::to_string(file.st_mtim.tv_nsec);
}

} // namespace imageposition
