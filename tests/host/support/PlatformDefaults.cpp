#include "PlatformDefaults.hpp"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace imageposition::test {

namespace {

std::string folderOfDefaults() {
  const char *const home = std::getenv("IMAGEPOSITION_PRIVATE_USER"); // by tools/with-private-user
  if (home == nullptr)
    throw std::runtime_error("the defaults are a real user's: run this with tools/with-display");
  return std::string(home) + "/GNUstep/Defaults";
}

} // namespace

PlatformDefaults::PlatformDefaults(const std::string &entries)
    : file_(folderOfDefaults() + "/print-dialog.plist") {
  std::ofstream(file_) << "{\n  " << entries << "\n}\n";
}

PlatformDefaults::~PlatformDefaults() {
  std::error_code ignored;
  std::filesystem::remove(file_, ignored);
}

} // namespace imageposition::test
