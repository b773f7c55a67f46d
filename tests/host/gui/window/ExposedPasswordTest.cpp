// The window's request for a password that others could read on the network.
#include "AskingCups.hpp"
#include "WholeJob.hpp"

namespace {

using namespace imageposition::test;

class ExposedPassword : public WholeJob {
protected:
  /// Waits for the password request of a CUPS server at that address, and returns whether it warns.
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

TEST_F(ExposedPassword, CausesAWarningIfOthersCanReadItOnTheNetwork) {
  EXPECT_TRUE(isWarnedOf(networkAddress()));
}

TEST_F(ExposedPassword, CausesNoWarningIfItStaysOnTheMachine) {
  EXPECT_FALSE(isWarnedOf("127.0.0.1"));
}

TEST_F(ExposedPassword, CausesNoWarningOnAnEncryptedConnection) {
  EXPECT_FALSE(isWarnedOf(networkAddress(), {"-E"}));
}

} // namespace
