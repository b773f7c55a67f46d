#include "ProgramFolder.hpp"

#include <filesystem>
#include <system_error>

namespace imageposition {

std::string besideProgram(const std::string &name) {
  std::error_code failed;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failed);
  return failed ? std::string() : (program.parent_path() / name).lexically_normal().string();
}

} // namespace imageposition
