// Printer descriptions with more of everything than real printers have. An attacker could use one
// to make the window hang.
#include "ExitCode.hpp"
#include "LargePpd.hpp"
#include "OptionConflicts.hpp"
#include "OptionLimit.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using namespace imageposition::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The error message for a PPD with this content; empty if it is accepted.
std::string refusalOf(const std::string &text) {
  try {
    largePrinter(text);
  } catch (const Failure &failure) {
    return failure.what();
  }
  return {};
}

/// Constraints between pairs of choices of one option.
std::string pairsOfChoices(int choices, int constraints) {
  std::string text = kPpdBeginning + goodOrBad(0) + "*OpenUI *Many: PickOne\n*DefaultMany: C0\n";
  for (int i = 0; i < choices; i++)
    text += "*Many C" + std::to_string(i) + ": \"\"\n";
  text += "*CloseUI: *Many\n";
  for (int i = 0; i < constraints; i++)
    text += "*UIConstraints: *Many C" + std::to_string(i % choices) + " *O0 Bad\n";
  return text;
}

TEST(LargePrinter, NamesTheFirstConflictsAndCountsTheOthers) {
  constexpr int kViolated = 44850;
  auto printer = largePrinter(violatedPairs(kViolated));
  PrintSettingsStore job;
  OptionConflicts conflicts(printer, job);
  EXPECT_EQ(ppdConflicts(printer.ppd()), kViolated);
  EXPECT_THAT(conflicts.sentences(2),
              ElementsAre("The printer cannot combine \"O1: Bad\" and \"O0: Bad\".",
                          "The printer cannot combine \"O2: Bad\" and \"O0: Bad\".",
                          "There are 44848 more conflicts."));
  EXPECT_FALSE(conflicts.proposal("O1")) << "three hundred changes are too many to read";
}

TEST(LargePrinter, CountsARepeatedConflictOnce) {
  std::string text = manyOptions(3);
  for (int i = 0; i < 1000; i++)
    text += "*UIConstraints: *O0 Bad *O1 Bad\n*UIConstraints: *O1 *O0 Bad\n";
  auto printer = largePrinter(text);
  PrintSettingsStore job;
  EXPECT_THAT(OptionConflicts(printer, job).find(), SizeIs(1));
}

TEST(LargePrinter, ResolvesAConflictAmongThousandsOfConstraints) {
  auto printer = largePrinter(pairsOfChoices(2000, 2000));
  PrintSettingsStore job;
  OptionConflicts conflicts(printer, job);
  ASSERT_THAT(conflicts.find(), SizeIs(1));
  PrinterOptions(printer, job).choose("O0", "Good");
  EXPECT_THAT(conflicts.find(), IsEmpty());
  EXPECT_EQ(ppdConflicts(printer.ppd()), 0);
}

TEST(LargePrinter, CanHaveEveryChoiceOfAListChosen) {
  constexpr int kChoices = 5000;
  auto printer = largePrinter(manyChoices(kChoices));
  PrintSettingsStore job;
  PrinterOptions options(printer, job);
  ASSERT_TRUE(options.choose("Several", allChoices(kChoices)));
  const auto several = options.find("Several");
  EXPECT_THAT(several->chosenSet(), SizeIs(kChoices));
  EXPECT_THAT(several->textOf(several->chosen), testing::EndsWith(", C4998, C4999"));
  ASSERT_TRUE(options.tick("Several", "C4998", false));
  EXPECT_THAT(options.find("Several")->chosenSet(), SizeIs(kChoices - 1));
}

TEST(LargePrinter, IsRefusedIfLibcupsWouldReadItForMinutes) {
  EXPECT_THAT(refusalOf(manyOptions(10000)), IsEmpty());
  EXPECT_THAT(refusalOf(manyOptions(12000)),
              testing::HasSubstr("too large for a printer description"));
  std::string byTurns = kPpdBeginning;
  for (int i = 0; i < 20000; i++)
    byTurns += "*Name X" + std::to_string(i) + ": \"\"\n*Other X" + std::to_string(i) + ": \"\"\n";
  EXPECT_THAT(refusalOf(byTurns), testing::HasSubstr("too large for a printer description"));
}

TEST(LargePrinter, IsRefusedIfLibcupsWouldReadItsConstraintsForMinutes) {
  EXPECT_THAT(refusalOf(pairsOfChoices(5000, 5000)), IsEmpty());
  EXPECT_THAT(refusalOf(pairsOfChoices(20000, 20000)),
              testing::HasSubstr("too large for a printer description"));
}

TEST(LargePrinter, OmitsOptionsThatDoNotFitIntoThePane) {
  auto printer = largePrinter(manyOptions(30) + manyChoices(20).substr(kPpdBeginning.size()));
  PrintSettingsStore job;
  auto groups = PrinterOptions(printer, job).listed({});
  auto few = groups;
  EXPECT_EQ(cutToRows(groups, 50), 0U);
  EXPECT_EQ(cutToRows(few, 49), 1U) << "the option whose twenty choices have no room";
  EXPECT_EQ(cutToRows(few, 10), 20U);
  ASSERT_THAT(few, SizeIs(1));
  EXPECT_THAT(few[0].options, SizeIs(10));
  EXPECT_EQ(cutToRows(few, 0), 10U);
  EXPECT_THAT(few, IsEmpty());
}

} // namespace
