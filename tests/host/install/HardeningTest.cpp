// The built code uses the mitigations that the system offers.
#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>

namespace {

using namespace imageposition::test;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

std::string readelf(const char *what, const std::string &file) {
  const auto result = runProcess({READELF, "-W", what, file});
  EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
  return result.output;
}

class Hardening : public testing::TestWithParam<const char *> {};

TEST_P(Hardening, ItsCodeIsPositionIndependent) {
  EXPECT_THAT(readelf("-h", GetParam()), HasSubstr("DYN"));
}

TEST_P(Hardening, ItsStackIsNotExecutable) {
  EXPECT_THAT(readelf("-l", GetParam()), ContainsRegex("GNU_STACK.* RW  "));
}

TEST_P(Hardening, NoSegmentIsBothWritableAndExecutable) {
  EXPECT_THAT(readelf("-l", GetParam()), Not(ContainsRegex("LOAD.* RWE ")));
}

TEST_P(Hardening, ItsRelocationsAreReadOnlyAfterLoading) {
  EXPECT_THAT(readelf("-l", GetParam()), HasSubstr("GNU_RELRO"));
  EXPECT_THAT(readelf("-d", GetParam()), HasSubstr("NOW"));
}

TEST_P(Hardening, ItsStackIsProtected) {
  EXPECT_THAT(readelf("--dyn-syms", GetParam()), HasSubstr("__stack_chk_fail"));
}

// Anyone who could write to a folder of a run path could plant a library there.
TEST_P(Hardening, ItHasNoRunPath) {
  EXPECT_THAT(readelf("-d", GetParam()), Not(ContainsRegex("RUNPATH|RPATH")));
}

#if defined(__x86_64__)
// Indirect jumps can then only reach the start of a function.
TEST_P(Hardening, ItHasIndirectBranchTracking) {
  const std::string code = contentOf(GetParam());
  const std::string mark = "\xf3\x0f\x1e\xfa";
  int marks = 0;
  for (std::size_t at = code.find(mark); at != std::string::npos; at = code.find(mark, at + 1))
    marks++;
  EXPECT_GT(marks, 20);
}
#endif

std::string nameOf(const testing::TestParamInfo<const char *> &info) {
  static const char *const kNames[] = {"Program", "Module", "PrintCore", "Plugin", "Renderer"};
  return kNames[info.index];
}

const std::vector<const char *> kCode{
    PRINT_DIALOG, CODE_OF_MODULE, CODE_OF_PRINT_CORE, CODE_OF_PLUGIN, CODE_OF_RENDERER,
};

INSTANTIATE_TEST_SUITE_P(Built, Hardening, testing::ValuesIn(kCode), nameOf);

TEST(HardeningOfTheProgram, CopiesAreCheckedForOverflow) {
  EXPECT_EQ(readelf("--dyn-syms", PRINT_DIALOG).find("_chk@") != std::string::npos, IS_FORTIFIED);
}

} // namespace
