// A plug-in in a window while the user changes the printer several times.
#include "WholeJob.hpp"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace {

using namespace imageposition::test;
using testing::Contains;
using testing::Pair;

class Plugin : public WholeJob {
protected:
  void SetUp() override {
    WholeJob::SetUp();
    addQueue("attic", "duplex-plain.ppd");
  }
  void TearDown() override {
    command({"lpadmin", "-x", "attic"});
    WholeJob::TearDown();
  }

  void choosePrinters(const std::string &behaviour) const {
    PrintWindow window({"-d", "office", "--plugin", FIXTURE_PLUGIN, document()},
                       {"FIXTURE_JOURNAL=" + journal, "FIXTURE_BEHAVIOUR=" + behaviour});
    for (const char *queue : {"attic", "office", "attic"})
      window.choose("Printer:", queue);
    window.click("Print");
    const PrintedJob job = printed(jobOf(window.ended()));
    EXPECT_THAT(job.environment, Contains(Pair("PRINTER", "attic")));
  }

  std::ptrdiff_t count(const std::string &operation) const {
    std::istringstream lines(contentOf(journal));
    return std::count(std::istream_iterator<std::string>(lines), {}, operation);
  }

  const std::string journal = folder.path("journal");
};

TEST_F(Plugin, IsStartedOnceAndAskedForThePanelsOfEachPrinter) {
  choosePrinters("");
  EXPECT_EQ(count("initWithBundle:"), 1);
  EXPECT_EQ(count("PDEPanelsForType:withHostInfo:"), 4);
}

TEST_F(Plugin, ThatCannotStartIsNotStartedAgain) {
  choosePrinters("refuse");
  EXPECT_EQ(count("initWithBundle:"), 1);
}

TEST_F(Plugin, ThatRaisesForOnePrinterIsAskedForPanelsOfTheNext) {
  choosePrinters("raise PDEPanelsForType:withHostInfo:");
  EXPECT_EQ(count("initWithBundle:"), 1);
  EXPECT_EQ(count("PDEPanelsForType:withHostInfo:"), 4);
}

} // namespace
