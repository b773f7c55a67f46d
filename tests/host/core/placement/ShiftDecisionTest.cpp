#include "OptionText.hpp"
#include "SharedKeys.h"
#include "ShiftedJob.hpp"
#include "TestPpd.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace imageposition {

namespace {

using test::TestPpd;

using Lines = std::vector<std::string>;

const Lines kTwoSided = TestPpd::option("Duplex", {"DuplexNoTumble", "DuplexTumble", "None"});
const Lines kOff = TestPpd::option("Duplex", {"None", "DuplexNoTumble"});

Lines with(Lines lines, const Lines &more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

PrintSettingsStore storeOf(const std::string &options) {
  PrintSettingsStore store;
  readOptionArgument(options, store);
  return store;
}

std::string planIn(const ShiftDecision &decision) {
  if (decision.by != ShiftedBy::Dialog)
    return decision.by == ShiftedBy::Printer ? "printer" : "nobody";
  const char *const sides[] = {"both", "fronts", "backs"};
  return shiftNote(decision.plan) + ", " + sides[static_cast<int>(decision.plan.order.sides)] +
         (decision.plan.order.isReversed ? ", reversed" : "");
}

TEST(ShiftDecision, SaysWhoMovesTheImage) {
  constexpr const char *kEnable = IPA_KEY_ENABLE;
  const std::string own = std::string(" ") + kEnable + "=True BackLeftRightMargin=-30";
  const Lines supported{"*AdjustDuplexPositionSupport: \"true\""};
  const struct {
    const char *what;
    Lines ppd;
    std::string options, expected;
  } rows[] = {
      {"without offsets", kTwoSided, "media=A4", "nobody"},
      {"zeros", kTwoSided, "LeftRightMargin=0 TopBottomMargin=0", "nobody"},
      {"the fronts' move both sides", kTwoSided, "LeftRightMargin=25 TopBottomMargin=-10",
       "front 2.5 -1 back 2.5 -1, both"},
      {"own offsets of the back", kTwoSided, "LeftRightMargin=25" + own,
       "front 2.5 0 back -3 0, both"},
      {"only the back moves", kTwoSided, "media=A4" + own, "front 0 0 back -3 0, both"},
      {"a flag as lp writes it", kTwoSided,
       std::string("LeftRightMargin=25 BackLeftRightMargin=5 ") + kEnable + "=true",
       "front 2.5 0 back 0.5 0, both"},
      {"back offsets without the flag", kTwoSided, "BackLeftRightMargin=5", "nobody"},
      {"a custom value", kTwoSided, "LeftRightMargin=Custom.25", "front 2.5 0 back 2.5 0, both"},
      {"a custom value in another case", kTwoSided, "LeftRightMargin=custom.25",
       "front 2.5 0 back 2.5 0, both"},
      {"the driver moves it", with(kTwoSided, supported), "LeftRightMargin=25", "printer"},
      {"the driver moves it, whatever the offsets", with(kTwoSided, supported), "media=A4",
       "printer"},
      {"a driver that says it does not",
       with(kTwoSided, {"*AdjustDuplexPositionSupport: \"false\""}), "LeftRightMargin=25",
       "front 2.5 0 back 2.5 0, both"},
      {"the dialog added the options",
       with(kTwoSided, with(supported, {"*printDialogImageShift: \"true\""})), "LeftRightMargin=25",
       "front 2.5 0 back 2.5 0, both"},
      {"two-sided printing is off", kOff, "LeftRightMargin=25", "nobody"},
      {"two-sided printing of another name is off", TestPpd::option("JCLDuplex", {"None"}),
       "LeftRightMargin=25", "nobody"},
      {"two-sided printing of another name", TestPpd::option("EFDuplex", {"Top", "None"}),
       "LeftRightMargin=25", "front 2.5 0 back 2.5 0, both"},
      {"a printer without it has fronts",
       {},
       "LeftRightMargin=25" + own,
       "front 2.5 0 back 0 0, fronts"},
      {"its back offsets alone", {}, "media=A4" + own, "nobody"},
      {"sheets turned by hand",
       {},
       "LeftRightMargin=25 page-set=even" + own,
       "front 0 0 back -3 0, backs"},
      {"even pages on both sides", kTwoSided, "LeftRightMargin=25 page-set=even",
       "front 2.5 0 back 2.5 0, both"},
      {"last page first", kTwoSided, "LeftRightMargin=25 OutputOrder=Reverse",
       "front 2.5 0 back 2.5 0, both, reversed"},
  };
  for (const auto &row : rows) {
    const TestPpd ppd(row.ppd);
    EXPECT_EQ(planIn(decideShift(storeOf(row.options), ppd)), row.expected) << row.what;
  }
}

TEST(IsReversed, FollowsTheJobThenTheBinThenThePrinter) {
  const Lines reverse{"*DefaultOutputOrder: Reverse"};
  const Lines bins = with(TestPpd::option("OutputBin", {"Rear", "Top"}),
                          {"*PageStackOrder Rear: \"Reverse\"", "*PageStackOrder Top: \"Normal\""});
  const struct {
    const char *what;
    Lines ppd;
    const char *options;
    bool expected;
  } rows[] = {
      {"nothing is said", {}, "media=A4", false},
      {"the printer", reverse, "media=A4", true},
      {"the job against the printer", reverse, "OutputOrder=Normal", false},
      {"an IPP option", reverse, "output-order=same-order", false},
      {"an IPP option", {}, "output-order=reverse-order", true},
      {"an option of a filter", {}, "page-delivery=reverse-order", true},
      {"in any case", {}, "outputorder=reverse", true},
      {"the bin", bins, "media=A4", true},
      {"the bin against the printer",
       with(TestPpd::option("OutputBin", {"Top"}),
            {"*PageStackOrder Top: \"Normal\"", "*DefaultOutputOrder: Reverse"}),
       "media=A4", false},
      {"the printer's option", TestPpd::option("OutputOrder", {"Reverse", "Normal"}), "media=A4",
       true},
      {"something else", {}, "OutputOrder=Random", false},
  };
  for (const auto &row : rows) {
    const TestPpd ppd(row.ppd);
    EXPECT_EQ(isReversed(storeOf(row.options), ppd), row.expected) << row.what;
  }
}

} // namespace

} // namespace imageposition
