// Random uses of the plug-in, each compared with the model after every step: as many as the
// variable IMAGEPOSITION_PANEL_USES says, or some hundreds. The fuzzer `panel` runs the same uses
// without end.
#import "PanelUse.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <vector>

namespace imageposition::test {
namespace {

constexpr unsigned kParts = 12; // tests, so that a failing use is found soon
constexpr unsigned kUses = 400; // of all parts together

unsigned usesOfEachPart() {
  const char *wanted = std::getenv("IMAGEPOSITION_PANEL_USES");
  const long uses = wanted ? std::strtol(wanted, nullptr, 10) : kUses;
  return uses > static_cast<long>(kParts) ? static_cast<unsigned>(uses) / kParts : 1;
}

class RandomPanelUse : public testing::TestWithParam<unsigned> {};

TEST_P(RandomPanelUse, StaysLikeTheModelAndLeavesNothingBehind) {
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
