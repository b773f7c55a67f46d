/// A folder that is deleted after the test.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_TEMPORARYFOLDER_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_TEMPORARYFOLDER_HPP

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <stdlib.h>
#include <string>

namespace imageposition::test {

class TemporaryFolder {
public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "print-dialog.XXXXXX").string();
    if (mkdtemp(&name[0]) == nullptr)
      throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder &) = delete;
  TemporaryFolder &operator=(const TemporaryFolder &) = delete;

  std::string path() const { return path_.string(); }
  std::string path(const std::string &name) const { return (path_ / name).string(); }

  /// Creates the file and its folders; returns its path.
  std::string write(const std::string &name, const std::string &content) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name, std::ios::binary) << content;
    return path(name);
  }

  std::size_t fileCount() const {
    std::size_t count = 0;
    for (const auto &entry : std::filesystem::directory_iterator(path_)) {
      (void)entry;
      count++;
    }
    return count;
  }

private:
  std::filesystem::path path_;
};

inline std::string contentOf(const std::string &path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

} // namespace imageposition::test

#endif
