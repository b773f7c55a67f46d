#include "WholeJob.hpp"

namespace imageposition::test {

namespace {

constexpr const char *kKeys[] = {"LeftRightMargin", "TopBottomMargin", "BackLeftRightMargin",
                                 "BackTopBottomMargin"};
constexpr char kFlag[] = "com.morva.printsettings.19AImagePositionEnable";

} // namespace

void PrintTo(const PanelValues &values, std::ostream *stream) {
  *stream << (values.back ? "back" : "no back");
  for (const int offset : values.offsets)
    *stream << ' ' << offset;
}

int WholeJob::jobOf(const ProcessResult &result) {
  EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
  const std::size_t start = result.output.find("request id is ");
  const std::size_t hyphen = result.output.find('-', start);
  if (start == std::string::npos || hyphen == std::string::npos) {
    ADD_FAILURE() << testing::PrintToString(result);
    return 0;
  }
  return std::atoi(result.output.c_str() + hyphen + 1);
}

void WholeJob::expectValues(const PrintedJob &job, const PanelValues &values) {
  for (int i = 0; i < 4; i++)
    EXPECT_THAT(job.options,
                testing::Contains(testing::Pair(kKeys[i], std::to_string(values.offsets[i]))))
        << job.optionText;
  const std::string bare = (values.back ? "" : "no") + std::string(kFlag);
  EXPECT_THAT(" " + job.optionText + " ", testing::HasSubstr(" " + bare + " "));
}

void WholeJob::enter(PrintWindow &window, const PanelValues &values) {
  window.tick(kSeparateOffsets, true);
  const char *const labels[] = {kFrontLeftRight, kFrontTopBottom, kBackLeftRight, kBackTopBottom};
  for (int i = 0; i < 4; i++)
    window.enter(labels[i], std::to_string(values.offsets[i]));
  window.tick(kSeparateOffsets, values.back);
}

} // namespace imageposition::test
