#include "Aligner.hpp"

#include "AlignmentFixture.hpp"

namespace imageposition {

namespace {

using namespace imageposition::test;
using testing::HasSubstr;

class AlignerTest : public WithAlignments {
protected:
  /// A printer whose A5 has another size.
  void usePaper(const std::string &size, const std::string &imageable) {
    std::string ppd = contentOf(ppd_);
    const auto replace = [&ppd](const std::string &before, const std::string &after) {
      ppd.replace(ppd.find(before), before.size(), after);
    };
    replace("*PaperDimension A5/A5: \"420 595\"", "*PaperDimension A5/A5: \"" + size + "\"");
    replace("*ImageableArea A5/A5: \"12 12 408 583\"",
            "*ImageableArea A5/A5: \"" + imageable + "\"");
    ppd_ = folder_.write("printer.ppd", ppd);
  }
};

TEST_F(AlignerTest, HasNoObstacleForATwoSidedJob) { EXPECT_FALSE(obstacleToAlignment(job())); }

TEST_F(AlignerTest, SaysWhyAOneSidedJobHasNoSheets) {
  job().settings().set("Duplex", "None");
  const auto obstacle = obstacleToAlignment(job());
  ASSERT_TRUE(obstacle);
  EXPECT_EQ(obstacle->reason, "Two-sided printing is off.");
  EXPECT_THAT(obstacle->advice, HasSubstr("-o Duplex"));
  EXPECT_THROW(Aligner{job()}, Failure);
}

TEST_F(AlignerTest, SaysWhySmallPaperHasNoSheets) {
  usePaper("150 240", "6 6 144 234");
  job().settings().set("PageSize", "A5");
  const auto obstacle = obstacleToAlignment(job());
  ASSERT_TRUE(obstacle);
  EXPECT_THAT(obstacle->reason, HasSubstr("too small"));
  EXPECT_EQ(obstacle->reason.find("-o"), std::string::npos);
}

TEST_F(AlignerTest, MentionsTheCreaseOnlyWhereThereAreRulers) {
  usePaper("298 420", "12 12 286 408"); // A6
  const auto advice = [this](const char *paper) {
    job().settings().set("PageSize", paper);
    return Aligner(job()).task().sheets.at(0).front.advice.size();
  };
  EXPECT_EQ(advice("A4"), 2U);
  EXPECT_EQ(advice("A5"), 1U);
}

} // namespace

} // namespace imageposition
