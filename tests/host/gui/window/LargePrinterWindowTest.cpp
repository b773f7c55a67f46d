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

TEST_F(LargePrinterWindow, NamesTheFirstConflictsAndCountsTheOthers) {
  PrintWindow window(onPpd(violatedPairs(44850)));
  EXPECT_TRUE(window.says("The printer cannot combine \"O1: Bad\" and \"O0: Bad\"."));
  EXPECT_TRUE(window.says("There are 44848 more conflicts."));
  window.choose("O0:", "Good");
  EXPECT_TRUE(window.says("There are 44549 more conflicts."));
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
