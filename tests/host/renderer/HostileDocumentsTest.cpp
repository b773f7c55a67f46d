// The inputs of the fuzzer, and documents that were made to take all time or memory.
#include "PageRenderer.hpp"

#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>

namespace imageposition {

namespace {

using namespace imageposition::test;

class HostileDocument : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(HostileDocument, GivesPagesOrAFailure) {
  const Descriptor pdf(open(GetParam().c_str(), O_RDONLY | O_CLOEXEC));
  ASSERT_TRUE(pdf.isOpen());
  const RenderRequest request{{0, 1}, 1, 240};
  const auto start = std::chrono::steady_clock::now();
  try {
    for (const RenderedPage &page : renderPages(pdf, request, [] { return true; })) {
      EXPECT_LE(page.width, 240);
      EXPECT_LE(page.height, 240);
      EXPECT_EQ(page.pixels.size(), static_cast<std::size_t>(page.width * page.height));
    }
  } catch (const RenderFailure &failure) {
    EXPECT_STRNE(failure.what(), "");
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

/// A call that the sandbox lacks ends the process with this signal.
constexpr int kForbiddenCall = 128 + SIGSYS;

TEST_P(HostileDocument, LetsTheProgramEndByItself) {
  const TemporaryFolder folder;
  const auto start = std::chrono::steady_clock::now();
  const int status = runProcess({"sh", "-c", "exec \"$0\" 1 240 0 1 3<\"$1\" 4>\"$2\"", RENDERER,
                                 GetParam().string(), folder.path("result")})
                         .status;
  EXPECT_NE(status, kForbiddenCall);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

std::vector<std::filesystem::path> documents() {
  std::vector<std::filesystem::path> paths;
  for (const char *const folder : {FUZZED_DOCUMENTS, HOSTILE_DOCUMENTS})
    for (const auto &entry : std::filesystem::directory_iterator(folder))
      paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  return paths;
}

INSTANTIATE_TEST_SUITE_P(Corpus, HostileDocument, testing::ValuesIn(documents()),
                         [](const auto &document) {
                           std::string name = document.param.filename();
                           std::replace_if(
                               name.begin(), name.end(),
                               [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
                           return name;
                         });

} // namespace

} // namespace imageposition
