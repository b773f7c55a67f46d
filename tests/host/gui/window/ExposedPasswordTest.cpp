// The window's question for a password that others could read on its way.
#include "AskingCups.hpp"
#include "WholeJob.hpp"

namespace {

using namespace imageposition::test;

class ExposedPassword : public WholeJob {
protected:
  /// Whether the question of a CUPS at that address warns; it has appeared then.
  static bool isWarnedOf(const std::string &host, const Words &words = {}) {
    const AskingCups cups(host);
    Words all = onQueue("office");
    all.insert(all.end(), words.begin(), words.end());
    PrintWindow window(all, cups.environment());
    window.press("Return");
    EXPECT_TRUE(window.says("requires a user name and password"));
    bool warns = false;
    for (const Control &control : window.screen().controls)
      warns = warns || control.text.find("not encrypted") != std::string::npos;
    window.press("Escape");
    EXPECT_TRUE(window.says("Nothing was printed"));
    return warns;
  }
};

TEST_F(ExposedPassword, IsWarnedOfWhereItCanBeReadOnTheWay) {
  EXPECT_TRUE(isWarnedOf(networkAddress()));
}

TEST_F(ExposedPassword, IsNotWarnedOfWhereItStaysOnTheMachine) {
  EXPECT_FALSE(isWarnedOf("127.0.0.1"));
}

TEST_F(ExposedPassword, IsNotWarnedOfOnAnEncryptedConnection) {
  EXPECT_FALSE(isWarnedOf(networkAddress(), {"-E"}));
}

} // namespace
