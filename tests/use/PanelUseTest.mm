// Thousands of random uses of the plug-in, each compared with the model after every step. The
// fuzzer `panel` runs the same uses without end.
#import "tests/use/PanelUse.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace imageposition::test {
namespace {

constexpr unsigned kUses = 200; // of each test; there are many, so that a failing one is found soon

class RandomPanelUse : public testing::TestWithParam<unsigned> {};

TEST_P(RandomPanelUse, StaysLikeTheModelAndLeavesNothingBehind) {
  for (unsigned seed = GetParam() * kUses; seed < (GetParam() + 1) * kUses; ++seed) {
    std::mt19937 generator(seed);
    std::vector<std::uint8_t> bytes(generator() % 600);
    for (std::uint8_t &byte : bytes)
      byte = static_cast<std::uint8_t>(generator());
    ASSERT_EQ(usePanel(bytes.data(), bytes.size()), "") << "with the seed " << seed;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomPanelUse, testing::Range(0U, 12U));

} // namespace
} // namespace imageposition::test
