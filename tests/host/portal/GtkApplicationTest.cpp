// Applications of GTK 3 and GTK 4, from Print to the printer.
#include "DrawnBoxes.hpp"
#include "PortalFixture.hpp"
#include "WholeJob.hpp"

#include <cstdlib>

namespace {

using namespace imageposition::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double kPointsPerTenth = 72 / 254.0;
/// The filters fit A4 into the size that the printer's description rounds to points.
constexpr double kTolerance = kPointsPerTenth;

class GtkApplication : public PortalFixture, public testing::WithParamInterface<const char *> {
protected:
  std::unique_ptr<Process> application(const std::vector<std::string> &words) const {
    std::vector<std::string> all{GetParam()};
    all.insert(all.end(), words.begin(), words.end());
    return std::make_unique<Process>(all, session->environment());
  }

  /// What the printer got of the only new job.
  static std::string printed() {
    std::vector<int> jobs;
    EXPECT_TRUE(becomesTrue([&] { return !(jobs = newJobs()).empty(); }));
    EXPECT_EQ(jobs.size(), 1U);
    return jobs.empty() ? "" : kept->contentOf(jobs.front());
  }
};

TEST_P(GtkApplication, PrintsWithTheOffsetsOfThePanel) {
  const auto editor = application({"2"});
  {
    PrintWindow dialog = window();
    dialog.enter(kLeftRight, "50");
    dialog.enter(kTopBottom, "20");
    dialog.press("Return");
  }
  EXPECT_THAT(editor->wait().output, HasSubstr("\napply\n")) << editor->wait().errors;
  const auto boxes = boxesInPostScript(printed());
  ASSERT_EQ(boxes.size(), 2U);
  for (int page = 0; page < 2; page++) {
    const auto &box = boxes[static_cast<std::size_t>(page)];
    const double left = 72 + 10 * page + 50 * kPointsPerTenth;
    const double bottom = 841.89 - 144 - 50 - 20 * kPointsPerTenth;
    EXPECT_NEAR(box[0], left, kTolerance);
    EXPECT_NEAR(box[2], left + 100, kTolerance);
    EXPECT_NEAR(box[1], bottom, kTolerance);
    EXPECT_NEAR(box[3], bottom + 50, kTolerance);
  }
  EXPECT_TRUE(hasNoDialog());
  EXPECT_TRUE(becomesTrue([&] { return session->preparedJobs() == 0; }));
}

TEST_P(GtkApplication, PagesPerSheetAreAppliedOnce) {
  const auto editor = application({"4", "number-up=2", "n-copies=2"});
  {
    PrintWindow dialog = window();
    EXPECT_EQ(dialog.field("Copies:"), "2");
    dialog.choose("Settings:", "More");
    dialog.choose("Pages per side:", "4");
    dialog.enter("Copies:", "1");
    dialog.press("Return");
  }
  const ProcessResult &result = editor->wait();
  EXPECT_THAT(result.output, HasSubstr("\napply\n")) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("setting number-up=1\n"));
  EXPECT_THAT(result.output, HasSubstr("setting n-copies=1\n"));
  const auto boxes = boxesInPostScript(printed());
  ASSERT_EQ(boxes.size(), 1U);
  // Four quarters of A4: the first rectangle's left edge to the last one's right edge.
  EXPECT_NEAR(boxes[0][2] - boxes[0][0], 595.28 / 2 + (30 + 100 - 0) / 2.0, 2);
  EXPECT_NEAR(boxes[0][3] - boxes[0][1], 841.89 / 2 + 50 / 2.0, 2);
}

TEST_P(GtkApplication, LearnsThatTheUserHasCancelled) {
  const auto editor = application({"1"});
  window().press("Escape");
  EXPECT_THAT(editor->wait().output, HasSubstr("\ncancel\n"));
  EXPECT_THAT(newJobs(), IsEmpty());
}

TEST_P(GtkApplication, HasTheDialogAboveItsWindow) {
  const auto editor = application({"1"});
  {
    PrintWindow dialog = window();
    const auto properties = [] {
      return runProcess(
                 {"sh", "-c", "xprop -id $(xdotool getwindowfocus) WM_TRANSIENT_FOR _NET_WM_STATE"})
          .output;
    };
    EXPECT_TRUE(becomesTrue([&] {
      return properties().find("_NET_WM_STATE_MODAL") != std::string::npos;
    })) << properties();
    const std::string shown = properties();
    const std::size_t number = shown.find("0x");
    ASSERT_NE(number, std::string::npos) << shown;
    dialog.press("Escape");
    EXPECT_THAT(editor->wait().output,
                HasSubstr("window " + shown.substr(number + 2, shown.find('\n') - number - 2)));
  }
}

INSTANTIATE_TEST_SUITE_P(Versions, GtkApplication,
                         testing::Values(GTK3_APPLICATION, GTK4_APPLICATION));

} // namespace
