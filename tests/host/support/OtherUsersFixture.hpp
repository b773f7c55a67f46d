/// What another user of the computer can do.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_OTHERUSERSFIXTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_OTHERUSERSFIXTURE_HPP

#include "ProcessRun.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <sys/types.h>
#include <vector>

namespace imageposition::test {

/// Neither root nor a user with files here.
constexpr uid_t kAnotherUser = 12346;

/// Compiles a library that adds a line with `word` to the file that FIXTURE_JOURNAL names as soon
/// as it is loaded.
inline void buildLibrary(const std::string &path, const std::string &word,
                         const std::vector<std::string> &options) {
  const std::string source = path + ".c";
  std::ofstream(source) << "#include <stdio.h>\n#include <stdlib.h>\n"
                           "__attribute__((constructor)) static void loaded(void) {\n"
                           "  FILE *journal = fopen(getenv(\"FIXTURE_JOURNAL\"), \"a\");\n"
                           "  fputs(\""
                        << word << "\\n\", journal);\n  fclose(journal);\n}\n";
  std::vector<std::string> words{C_COMPILER, "-shared", "-fPIC", "-Wl,--no-as-needed",
                                 "-o",       path,      source};
  words.insert(words.end(), options.begin(), options.end());
  const auto result = runProcess(words);
  ASSERT_EQ(result.status, 0) << testing::PrintToString(result);
  std::filesystem::remove(source);
}

} // namespace imageposition::test

#endif
