// What needs neither a window nor a panel is done without GNUstep, whose start takes most of the
// time that a program of it takes.
#include "DialogFixture.hpp"

namespace {

using namespace imageposition::test;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

class PlainStart : public DialogFixture {
protected:
  /// The dynamic loader says on standard error which libraries it loads, whenever it does.
  ProcessResult traced(const Words &words) const { return dialog(words, {"LD_DEBUG=files"}); }

  const std::string printer = sample("duplex-shift.ppd");
};

TEST_F(PlainStart, LoadsNoGnustepForWhatNeedsNoWindowAndNoPanel) {
  const struct {
    Words words;
    int status;
  } rows[] = {
      {{"--help"}, kDone},
      {{"--version"}, kDone},
      {{"--ppd", printer, "--list-options"}, kDone},
      {{"--no-such-option"}, kUsage},
      {{"--ppd", printer, "--summary"}, kUsage},
      {{"--ppd", printer, folder.path("missing.pdf")}, kUsage},
  };
  for (const auto &[words, status] : rows) {
    SCOPED_TRACE(testing::PrintToString(words));
    const ProcessResult result = traced(words);
    EXPECT_EQ(result.status, status);
    EXPECT_THAT(result.errors, Not(AnyOf(HasSubstr("gnustep"), HasSubstr("libobjc"))));
  }
}

TEST_F(PlainStart, LoadsGnustepForAPanel) {
  const ProcessResult result = traced({"--batch", "--ppd", printer});
  EXPECT_EQ(result.status, kDone);
  EXPECT_THAT(result.errors, HasSubstr("libgnustep-gui"));
}

} // namespace
