#include "AlignmentSteps.hpp"

#include "AlignmentFixture.hpp"

#include <vector>

namespace imageposition {

namespace {

using namespace imageposition::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Step = AlignmentSteps::Step;

class AlignmentStepsTest : public WithAlignments {
protected:
  AlignmentSteps &steps() {
    if (!steps_)
      steps_.emplace(job(), errors_);
    return *steps_;
  }

  void enter(std::size_t row, const std::vector<std::string> &numbers) {
    for (std::size_t column = 0; column < numbers.size(); column++)
      steps().form().enter({row, column}, numbers[column]);
  }

  SideOffsets offsets() { return sideOffsetsIn(job().settings()); }
  std::optional<SideOffsets> stored() {
    const auto found = Alignments::read(errors_).find(steps().aligner().key());
    return found ? std::optional(found->offsets) : std::nullopt;
  }

private:
  std::optional<AlignmentSteps> steps_;
};

TEST_F(AlignmentStepsTest, BeginWithWhatIsPrinted) {
  setSideOffsets(job().settings(), {{{5}, {0}}, {{-3}, {12}}});
  EXPECT_EQ(steps().step(), Step::Print);
  const auto explanation = steps().explanation();
  ASSERT_EQ(explanation.size(), 3U);
  EXPECT_THAT(explanation[0], HasSubstr("3 sheets"));
  EXPECT_THAT(explanation[1], HasSubstr("A4, turned about the long edge"));
  EXPECT_THAT(explanation[2], HasSubstr("front: right 0.5 mm, down 0 mm; back: right -0.3 mm"));
}

TEST_F(AlignmentStepsTest, LeadFromPrintingToReadingAndToTheCheck) {
  steps().sheetsPrinted();
  EXPECT_EQ(steps().step(), Step::Read);
  EXPECT_THAT(steps().findings(), IsEmpty());
  EXPECT_TRUE(steps().form().problem());
  enter(0, {"1.7", "-0.3", "1.7", "-0.3"});
  ASSERT_FALSE(steps().form().problem());
  ASSERT_TRUE(steps().takeOffsets());
  EXPECT_EQ(steps().step(), Step::Check);
  EXPECT_THAT(steps().explanation(), ElementsAre(HasSubstr("lines at 0 should meet")));
  const SideOffsets expected{{}, {{-17}, {3}}};
  EXPECT_EQ(offsets(), expected);
  EXPECT_EQ(stored(), expected);
  EXPECT_THAT(job().alignment().note(), HasSubstr("were measured on"));
}

TEST_F(AlignmentStepsTest, AddToTheOffsetsOfThePrintedSheets) {
  setSideOffsets(job().settings(), {{{5}, {0}}, {{-10}, {0}}});
  steps().sheetsPrinted();
  setSideOffsets(job().settings(), {});
  enter(2, {"0.2", "0", "0.2", "0"});
  ASSERT_TRUE(steps().takeOffsets());
  EXPECT_EQ(offsets(), (SideOffsets{{{5}, {0}}, {{-12}, {0}}}));
}

TEST_F(AlignmentStepsTest, AddToTheOffsetsOfTheLastSheets) {
  setSideOffsets(job().settings(), {{}, {{-10}, {0}}});
  AlignmentSteps(job(), errors_).sheetsPrinted();
  setSideOffsets(job().settings(), {{}, {{-20}, {0}}});
  steps().sheetsPrinted();
  enter(0, {"0.5", "0", "0.5", "0"});
  steps().takeOffsets();
  EXPECT_EQ(offsets(), (SideOffsets{{}, {{-25}, {0}}}));
}

TEST_F(AlignmentStepsTest, ReadSheetsThatWerePrintedEarlier) {
  {
    setSideOffsets(job().settings(), {{}, {{-10}, {0}}});
    AlignmentSteps(job(), errors_).sheetsPrinted();
    setSideOffsets(job().settings(), {});
  }
  EXPECT_THAT(steps().explanation().back(), HasSubstr("back: right -1 mm"));
  steps().read();
  EXPECT_EQ(steps().step(), Step::Read);
  enter(0, {"0.5", "0", "0.5", "0"});
  ASSERT_TRUE(steps().takeOffsets());
  EXPECT_EQ(offsets(), (SideOffsets{{}, {{-15}, {0}}}));
}

TEST_F(AlignmentStepsTest, SayWhatIsFoundAsSoonAsASheetIsComplete) {
  steps().read();
  enter(0, {"1.7", "-0.3", "1.7"});
  EXPECT_THAT(steps().findings(), IsEmpty());
  enter(0, {"1.7", "-0.3", "1.7", "-0.3"});
  EXPECT_THAT(steps().findings(), ElementsAre(HasSubstr("1.7 mm to the right and 0.3 mm up"),
                                              HasSubstr("One sheet"), HasSubstr("Offsets: ")));
  enter(1, {"1.9", "-0.3", "1.9", "-0.3"});
  EXPECT_THAT(steps().findings().at(1), HasSubstr("The 2 sheets differ by up to 0.2 mm"));
  enter(1, {"1.9", "-0.3", "0.9", "-0.3"});
  EXPECT_THAT(steps().findings().back(), HasSubstr("The corners disagree"));
}

TEST_F(AlignmentStepsTest, MoveBothSidesByTheCrease) {
  steps().read();
  enter(0, {"0", "0", "0", "0"});
  enter(3, {"1", "-0.5"});
  ASSERT_TRUE(steps().takeOffsets());
  EXPECT_EQ(offsets(), (SideOffsets{{{10}, {-5}}, {{-10}, {-5}}}));
}

TEST_F(AlignmentStepsTest, KeepTheNumbersOnTheWayBack) {
  steps().read();
  enter(0, {"1.7"});
  steps().goBack();
  EXPECT_EQ(steps().step(), Step::Print);
  steps().read();
  EXPECT_EQ(steps().form().text({0, 0}), "1.7");
}

TEST_F(AlignmentStepsTest, BeginAgainWithTheNewOffsets) {
  steps().read();
  enter(0, {"1.7", "-0.3", "1.7", "-0.3"});
  steps().takeOffsets();
  steps().printAgain();
  EXPECT_EQ(steps().step(), Step::Print);
  EXPECT_EQ(steps().form().text({0, 0}), "");
  EXPECT_EQ(steps().aligner().present(), (SideOffsets{{}, {{-17}, {3}}}));
  steps().sheetsPrinted();
  enter(0, {"0.1", "0", "0.1", "0"});
  steps().takeOffsets();
  EXPECT_EQ(stored(), (SideOffsets{{}, {{-18}, {3}}}));
}

TEST_F(AlignmentStepsTest, ChangeNothingBeforeTheOffsetsAreTaken) {
  setSideOffsets(job().settings(), {{{5}, {0}}, {{-3}, {12}}});
  steps().read();
  enter(0, {"1.7", "-0.3", "1.7", "-0.3"});
  steps().findings();
  EXPECT_EQ(offsets(), (SideOffsets{{{5}, {0}}, {{-3}, {12}}}));
  EXPECT_FALSE(stored());
}

TEST_F(AlignmentStepsTest, SetOffsetsThatCannotBeKept) {
  folder_.write("config/print-dialog/alignments.json", "mine");
  steps().read();
  enter(0, {"1.7", "-0.3", "1.7", "-0.3"});
  EXPECT_FALSE(steps().takeOffsets());
  EXPECT_THAT(errors_.str(), HasSubstr("Cannot save the measurements"));
  EXPECT_EQ(offsets(), (SideOffsets{{}, {{-17}, {3}}}));
  EXPECT_THAT(job().alignment().note(), HasSubstr("were measured on"));
}

TEST_F(AlignmentStepsTest, FollowTheSettingsAfterwards) {
  steps().read();
  enter(0, {"1.7", "-0.3", "1.7", "-0.3"});
  steps().takeOffsets();
  job().settings().set("Duplex", "DuplexTumble");
  EXPECT_TRUE(job().alignment().follow());
  EXPECT_EQ(offsets(), (SideOffsets{{}, {{17}, {-3}}}));
}

TEST_F(AlignmentStepsTest, OutdoOffsetsOfTheCommandLine) {
  arguments_.options = {"BackLeftRightMargin=4"};
  steps().read();
  enter(0, {"1.7", "-0.3", "1.7", "-0.3"});
  steps().takeOffsets();
  const SideOffsets taken = offsets();
  job().settings().set("MediaType", "Transparency");
  EXPECT_FALSE(job().alignment().follow());
  EXPECT_EQ(offsets(), taken);
}

TEST_F(AlignmentStepsTest, ForgetTheNumbersOfOtherSheets) {
  steps().read();
  enter(0, {"1.7"});
  steps().goBack();
  steps().sheetsPrinted();
  EXPECT_EQ(steps().form().text({0, 0}), "");
}

} // namespace

} // namespace imageposition
