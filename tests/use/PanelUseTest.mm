// Random uses of the plug-in, each compared with the model after every step. The variable
// IMAGEPOSITION_PANEL_USES sets their number, which is some hundreds by default. The fuzzer `panel`
// runs the same kind of uses.
#import "PanelUse.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <vector>

namespace imageposition::test {
namespace {

constexpr unsigned kParts = 12; // test cases, so that ctest shows a failure early
constexpr unsigned kUses = 400; // in all parts together

unsigned usesOfEachPart() {
  const char *variable = std::getenv("IMAGEPOSITION_PANEL_USES");
  const long uses = variable ? std::strtol(variable, nullptr, 10) : kUses;
  return uses > static_cast<long>(kParts) ? static_cast<unsigned>(uses) / kParts : 1;
}

class RandomPanelUse : public testing::TestWithParam<unsigned> {};

TEST_P(RandomPanelUse, MatchesTheModelAndLeaksNothing) {
  const unsigned uses = usesOfEachPart();
  for (unsigned seed = GetParam() * uses; seed < (GetParam() + 1) * uses; ++seed) {
    std::mt19937 generator(seed);
    std::vector<std::uint8_t> bytes(generator() % 600);
    for (std::uint8_t &byte : bytes)
      byte = static_cast<std::uint8_t>(generator());
    ASSERT_EQ(usePanel(bytes.data(), bytes.size()), "") << "with the seed " << seed;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomPanelUse, testing::Range(0U, kParts));

} // namespace
} // namespace imageposition::test
