// The window with more data than it has room for, as from a printer or program that tries to make
// it hang.
#include "LargePpd.hpp"
#include "PrintWindow.hpp"

#include <gtest/gtest.h>

namespace {

using namespace imageposition::test;

class LargePrinterWindow : public testing::Test {
protected:
  std::vector<std::string> onPpd(const std::string &text) const {
    return {"--ppd", folder.write("large.ppd", text), "--ticket", folder.path("job.json")};
  }

  const TemporaryFolder folder;
};

/// libcups grows its list of constraints one by one, and AddressSanitizer copies it each time.
#ifdef __SANITIZE_ADDRESS__
constexpr int kOptions = 100;
#else
constexpr int kOptions = 300;
#endif

std::string moreConflicts(int count) {
  return "There are " + std::to_string(count) + " more conflicts.";
}

TEST_F(LargePrinterWindow, NamesTheFirstConflictsAndCountsTheOthers) {
  constexpr int kPairs = kOptions * (kOptions - 1) / 2;
  PrintWindow window(onPpd(violatedPairs(kPairs)));
  EXPECT_TRUE(window.says("The printer cannot combine \"O1: Bad\" and \"O0: Bad\"."));
  EXPECT_TRUE(window.says(moreConflicts(kPairs - 2)));
  window.choose("O0:", "Good");
  EXPECT_TRUE(window.says(moreConflicts(kPairs - 2 - (kOptions - 1))));
}

TEST_F(LargePrinterWindow, ShowsTheFirstOfThousandsOfOptionsAndCountsTheOthers) {
  PrintWindow window(onPpd(manyOptions(5000)));
  EXPECT_TRUE(window.says("There is no space for 4500 more options."));
}

TEST_F(LargePrinterWindow, ShortensADocumentNameOfAMegabyte) {
  const std::string name(1000000, 'n');
  folder.write("job.json", R"({"settings": {}, "documents": ["begins-)" + name + R"(-ends"]})");
  PrintWindow window(onPpd(manyOptions(1)));
  EXPECT_TRUE(window.says("begins-nnn"));
  EXPECT_TRUE(window.says("nnn-ends"));
}

} // namespace
