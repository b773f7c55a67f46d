// Commands that need neither a window nor a panel do not load GNUstep, which takes most of a
// program's startup time.
#include "DialogFixture.hpp"

namespace {

using namespace imageposition::test;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

class PlainStart : public DialogFixture {
protected:
  /// The dynamic loader reports each library that it loads on standard error.
  ProcessResult traced(const Words &words) const { return dialog(words, {"LD_DEBUG=files"}); }

  const std::string printer = sample("duplex-shift.ppd");
};

TEST_F(PlainStart, DoesNotLoadGnustepWithoutAWindowOrPanel) {
  const struct {
    Words words;
    int status;
  } rows[] = {
      {{"--help"}, kDone},
      {{"--version"}, kDone},
      {{"--ppd", printer, "--list-options"}, kDone},
      {{"--no-such-option"}, kUsage},
      {{"--ppd", printer, "--summary"}, kUsage},
      {{"--batch", "--ppd", printer, folder.path("missing.pdf")}, kUsage},
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
