#include "PreviewGeometry.hpp"

#include "PrinterDescription.hpp"
#include "TestPpd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>

namespace imageposition {

std::ostream &operator<<(std::ostream &stream, const Offset &offset) {
  return stream << offset.right.count << " right, " << offset.down.count << " down";
}

std::ostream &operator<<(std::ostream &stream, const PageRectangle &rectangle) {
  return stream << rectangle.left.count << " " << rectangle.top.count << " "
                << rectangle.right.count << " " << rectangle.bottom.count;
}

} // namespace imageposition

namespace {

using namespace imageposition;
using imageposition::test::TestPpd;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char *kEnable = "com.morva.printsettings.19AImagePositionEnable";

using Settings = std::map<std::string, std::string>;

PrintSettingsStore storeOf(const Settings &settings) {
  PrintSettingsStore store;
  for (const auto &[name, value] : settings)
    EXPECT_EQ(store.set(name, value), PrintSettingsStore::Outcome::Stored) << name;
  return store;
}

/// 100 by 200 points, with margins of 5, 10, 15 and 20 points at the left, top, right and bottom.
PageShape portraitPage() { return {{100}, {200}, {{5}, {10}, {85}, {180}}, true, true}; }
PageShape landscapePage() { return {{200}, {100}, {{5}, {10}, {185}, {80}}, true, true}; }

/// An inch is 72 points.
/// Some processors compute with more digits than they store.
MATCHER_P(IsAbout, expected, "") {
  const auto isNear = [](Point a, Point b) { return std::abs(a.count - b.count) < 1e-9; };
  return isNear(arg.left, expected.left) && isNear(arg.bottom, expected.bottom) &&
         isNear(arg.right, expected.right) && isNear(arg.top, expected.top);
}

constexpr TenthMillimetre inches(int count) { return {254 * count}; }

PreviewRequest requestFor(const PageShape &page, Offset front, Offset back,
                          Turning turning = Turning::LongEdge) {
  PreviewRequest request;
  request.page = page;
  request.front = front;
  request.back = back;
  request.turning = turning;
  return request;
}

double area(const PageRectangle &rectangle) {
  return (rectangle.right - rectangle.left).count * (rectangle.bottom - rectangle.top).count;
}

double lostArea(const SidePreview &side) {
  double sum = 0;
  for (const PageRectangle &part : side.lost)
    sum += area(part);
  return sum;
}

TEST(PreviewRequest, ReadsTheOffsetsOfBothSides) {
  const struct {
    Settings settings;
    Offset front;
    Offset back;
  } rows[] = {
      {{}, {}, {}},
      {{{"LeftRightMargin", "3"}, {"TopBottomMargin", "-4"}}, {{3}, {-4}}, {{3}, {-4}}},
      {{{kEnable, "True"}, {"LeftRightMargin", "3"}, {"BackTopBottomMargin", "7"}},
       {{3}, {0}},
       {{0}, {7}}},
      {{{kEnable, "True"}, {"LeftRightMargin", "3"}, {"BackLeftRightMargin", "-5"}},
       {{3}, {0}},
       {{-5}, {0}}},
      {{{kEnable, "False"}, {"LeftRightMargin", "3"}, {"BackLeftRightMargin", "-5"}},
       {{3}, {0}},
       {{3}, {0}}},
      // The panel accepts no other spelling of "True".
      {{{kEnable, "true"}, {"LeftRightMargin", "3"}, {"BackLeftRightMargin", "-5"}},
       {{3}, {0}},
       {{3}, {0}}},
      {{{"LeftRightMargin", "garbage"}, {"TopBottomMargin", ""}}, {}, {}},
      {{{"LeftRightMargin", " 12x"}, {"TopBottomMargin", "--4"}}, {{12}, {0}}, {{12}, {0}}},
      {{{"LeftRightMargin", "99999999999"}, {"TopBottomMargin", "-99999999999"}},
       {{2147483647}, {-2147483648}},
       {{2147483647}, {-2147483648}}},
  };
  int index = 0;
  for (const auto &row : rows) {
    SCOPED_TRACE("row " + std::to_string(index++));
    const PreviewRequest request = readPreviewRequest(storeOf(row.settings), nullptr);
    EXPECT_EQ(request.front, row.front);
    EXPECT_EQ(request.back, row.back);
  }
}

TEST(PreviewRequest, ReadsTheTurningFromTheMarkedChoice) {
  const struct {
    const char *marked;
    Turning expected;
  } rows[] = {{"None", Turning::OneSided},
              {"DuplexNoTumble", Turning::LongEdge},
              {"DuplexTumble", Turning::ShortEdge},
              {"Other", Turning::LongEdge}};
  TestPpd ppd(TestPpd::option("Duplex", {"None", "DuplexNoTumble", "DuplexTumble", "Other"}));
  for (const auto &row : rows) {
    ppd.mark("Duplex", row.marked);
    EXPECT_EQ(readPreviewRequest({}, ppd).turning, row.expected) << row.marked;
  }
}

TEST(PreviewRequest, AssumesTheLongEdgeWithoutADuplexOption) {
  TestPpd ppd;
  EXPECT_EQ(readPreviewRequest({}, ppd).turning, Turning::LongEdge);
  EXPECT_EQ(readPreviewRequest({}, nullptr).turning, Turning::LongEdge);
}

TEST(PreviewRequest, ReadsThePageFromTheMarkedMedia) {
  PrinterDescription printer =
      PrinterDescription::fromFile(IMAGEPOSITION_SAMPLES "/duplex-shift.ppd");
  EXPECT_EQ(readPreviewRequest({}, printer.ppd()).page.imageable,
            (PageRectangle{{12}, {12}, {583}, {830}}));
  const PrintSettingsStore job = storeOf({{"PageSize", "A5"}});
  printer.mark(job);
  const PageShape page = readPreviewRequest(job, printer.ppd()).page;
  EXPECT_EQ(page.width, Point{420});
  EXPECT_EQ(page.height, Point{595});
  EXPECT_EQ(page.imageable, (PageRectangle{{12}, {12}, {408}, {583}}));
  EXPECT_TRUE(page.isSizeKnown);
  EXPECT_TRUE(page.isImageableKnown);
}

TEST(PreviewRequest, MeasuresTheImageableAreaFromTheTop) {
  TestPpd ppd;
  ppd_size_t *const size = ppdPageSize(ppd, nullptr);
  ASSERT_NE(size, nullptr);
  size->bottom = 100;
  size->top = 800;
  const PageShape page = readPreviewRequest({}, ppd).page;
  EXPECT_EQ(page.imageable.top, Point{42});
  EXPECT_EQ(page.imageable.bottom, Point{742});
}

TEST(PreviewRequest, AssumesA4ForAnUnknownSize) {
  TestPpd unmarked;
  ppdPageSize(unmarked, nullptr)->marked = 0;
  TestPpd empty;
  ppdPageSize(empty, nullptr)->width = 0;
  TestPpd endless;
  ppdPageSize(endless, nullptr)->length = std::numeric_limits<float>::infinity();
  for (ppd_file_t *ppd : {unmarked.get(), empty.get(), endless.get(), (ppd_file_t *)nullptr}) {
    const PageShape page = readPreviewRequest({}, ppd).page;
    EXPECT_FALSE(page.isSizeKnown);
    EXPECT_EQ(page.width, Point{595});
    EXPECT_EQ(page.imageable, (PageRectangle{{0}, {0}, {595}, {842}}));
  }
}

TEST(PreviewRequest, ReplacesAnInvalidImageableAreaByTheWholePage) {
  TestPpd ppd;
  ppd_size_t *const size = ppdPageSize(ppd, nullptr);
  size->left = 400;
  size->right = 300;
  PageShape page = readPreviewRequest({}, ppd).page;
  EXPECT_TRUE(page.isSizeKnown);
  EXPECT_FALSE(page.isImageableKnown);
  EXPECT_EQ(page.imageable, (PageRectangle{{0}, {0}, {595}, {842}}));
  size->left = std::numeric_limits<float>::quiet_NaN();
  size->right = std::numeric_limits<float>::quiet_NaN();
  page = readPreviewRequest({}, ppd).page;
  EXPECT_TRUE(std::isfinite(page.imageable.left.count));
  EXPECT_TRUE(std::isfinite(page.imageable.right.count));
}

TEST(Preview, PositiveOffsetsShiftRightAndDownForTheReaderOfTheSide) {
  const Preview preview =
      makePreview(requestFor(portraitPage(), {inches(1), -inches(1)}, {-inches(2), inches(2)}));
  EXPECT_THAT(preview.front.content, IsAbout(PageRectangle{{77}, {-62}, {157}, {108}}));
  ASSERT_TRUE(preview.back);
  EXPECT_THAT(preview.back->content, IsAbout(PageRectangle{{-139}, {154}, {-59}, {324}}));
}

TEST(Preview, UnshiftedContentFillsTheImageableAreaAndLosesNothing) {
  const Preview preview = makePreview(requestFor(portraitPage(), {}, {}));
  EXPECT_EQ(preview.front.content, portraitPage().imageable);
  EXPECT_THAT(preview.front.lost, IsEmpty());
  EXPECT_THAT(preview.back->lost, IsEmpty());
  EXPECT_THAT(preview.frontSeenThrough->lost, IsEmpty());
}

TEST(Preview, AgainstTheLightTheFrontIsMirroredAboutTheTurningEdge) {
  // All margins differ, so a wrong mirror axis cannot go unnoticed.
  const struct {
    PageShape page;
    Turning turning;
    Offset seen;
    PageRectangle imageable;
  } rows[] = {
      {portraitPage(), Turning::LongEdge, {{-3}, {5}}, {{15}, {10}, {95}, {180}}},
      {portraitPage(), Turning::ShortEdge, {{3}, {-5}}, {{5}, {20}, {85}, {190}}},
      {landscapePage(), Turning::LongEdge, {{3}, {-5}}, {{5}, {20}, {185}, {90}}},
      {landscapePage(), Turning::ShortEdge, {{-3}, {5}}, {{15}, {10}, {195}, {80}}},
  };
  int index = 0;
  for (const auto &row : rows) {
    SCOPED_TRACE("row " + std::to_string(index++));
    const Preview preview = makePreview(requestFor(row.page, {{3}, {5}}, {{1}, {1}}, row.turning));
    ASSERT_TRUE(preview.frontSeenThrough);
    EXPECT_EQ(preview.frontSeenThrough->offset, row.seen);
    EXPECT_EQ(preview.frontSeenThrough->imageable, row.imageable);
    EXPECT_EQ(preview.front.offset, (Offset{{3}, {5}}));
    EXPECT_EQ(backAgainstFront(preview),
              (Offset{TenthMillimetre{1} - row.seen.right, TenthMillimetre{1} - row.seen.down}));
  }
}

TEST(Preview, MirroringTwiceReturnsTheFront) {
  const Preview once =
      makePreview(requestFor(portraitPage(), {inches(1), inches(1)}, {}, Turning::LongEdge));
  const PageRectangle &seen = once.frontSeenThrough->content;
  EXPECT_EQ(portraitPage().width - seen.right, once.front.content.left);
  EXPECT_EQ(seen.top, once.front.content.top);
  EXPECT_DOUBLE_EQ(lostArea(*once.frontSeenThrough), lostArea(once.front));
}

TEST(Preview, ContentOutsideTheImageableAreaIsLostOnce) {
  const struct {
    Offset offset;
    std::vector<PageRectangle> lost;
  } rows[] = {
      {{inches(1), {0}}, {{{85}, {10}, {157}, {180}}}},
      {{-inches(1), {0}}, {{{-67}, {10}, {5}, {180}}}},
      {{{0}, inches(1)}, {{{5}, {180}, {85}, {252}}}},
      {{{0}, -inches(1)}, {{{5}, {-62}, {85}, {10}}}},
      {{inches(1), inches(1)}, {{{77}, {180}, {157}, {252}}, {{85}, {82}, {157}, {180}}}},
      // Shifted so far that nothing is left.
      {{inches(2), {0}}, {{{149}, {10}, {229}, {180}}}},
      {{{0}, inches(3)}, {{{5}, {226}, {85}, {396}}}},
  };
  for (const auto &row : rows) {
    const Preview preview = makePreview(requestFor(portraitPage(), row.offset, {}));
    EXPECT_EQ(preview.front.lost, row.lost) << row.offset;
    EXPECT_THAT(preview.back->lost, IsEmpty()) << row.offset;
  }
}

TEST(Preview, OneSidedPrintingHasNoBack) {
  const Preview preview = makePreview(requestFor(portraitPage(), {}, {}, Turning::OneSided));
  EXPECT_FALSE(preview.back);
  EXPECT_FALSE(preview.frontSeenThrough);
  EXPECT_EQ(backAgainstFront(preview), Offset{});
}

TEST(Preview, NothingIsShiftedWhileTheAdjustmentIsNotAvailable) {
  PreviewRequest request = requestFor(portraitPage(), {{10}, {10}}, {{20}, {20}});
  request.availability.bannerPages = true;
  const Preview preview = makePreview(request);
  EXPECT_EQ(preview.front.content, portraitPage().imageable);
  EXPECT_EQ(preview.back->content, portraitPage().imageable);
  EXPECT_THAT(describePreview(preview), ElementsAre("Banner pages are on."));
}

TEST(Preview, DiffersIfAnythingToDrawDiffers) {
  const PreviewRequest request = requestFor(portraitPage(), {{1}, {2}}, {{3}, {4}});
  const Preview preview = makePreview(request);
  EXPECT_EQ(preview, makePreview(request));
  const auto changed = [&](auto change) {
    PreviewRequest other = request;
    change(other);
    return makePreview(other);
  };
  EXPECT_NE(preview, changed([](PreviewRequest &r) { r.front.right.count++; }));
  EXPECT_NE(preview, changed([](PreviewRequest &r) { r.back.down.count++; }));
  EXPECT_NE(preview, changed([](PreviewRequest &r) { r.turning = Turning::ShortEdge; }));
  EXPECT_NE(preview, changed([](PreviewRequest &r) { r.page.width.count++; }));
  EXPECT_NE(preview, changed([](PreviewRequest &r) { r.availability.bannerPages = true; }));
  EXPECT_NE(preview, changed([](PreviewRequest &r) { r.hasLandscapePages = true; }));
}

TEST(PreviewSentences, DescribeTheShiftOfEachSide) {
  const struct {
    Offset front;
    Offset back;
    Turning turning;
    std::vector<std::string> expected;
  } rows[] = {
      {{}, {}, Turning::LongEdge, {"Neither side moves."}},
      {{{25}, {-1}},
       {{-25}, {-1}},
       Turning::LongEdge,
       {"The front moves 2.5 mm to the right and 0.1 mm up.",
        "The back moves 2.5 mm to the left and 0.1 mm up, as you look at the back.",
        "Against the light, both sides move together.",
        "A front that fills its printable area loses 2.5 mm at the right and 0.1 mm at the top.",
        "A back that fills its printable area loses 2.5 mm at the left and 0.1 mm at the top."}},
      {{{0}, {10}},
       {{0}, {10}},
       Turning::ShortEdge,
       {"Each side moves 1 mm down, as you look at that side.",
        "Against the light, with the back towards you, the back moves 2 mm down relative to the "
        "front.",
        "A front that fills its printable area loses 1 mm at the bottom.",
        "A back that fills its printable area loses 1 mm at the bottom."}},
      {{},
       {{7}, {0}},
       Turning::LongEdge,
       {"The back moves 0.7 mm to the right, as you look at the back.",
        "Against the light, with the back towards you, the back moves 0.7 mm to the right relative "
        "to the front.",
        "A back that fills its printable area loses 0.7 mm at the right."}},
  };
  for (const auto &row : rows)
    EXPECT_EQ(
        describePreview(makePreview(requestFor(portraitPage(), row.front, row.back, row.turning))),
        row.expected);
}

TEST(PreviewSentences, SayForLandscapePagesThatTheOffsetsAreTheSheets) {
  constexpr const char *kSentence = "The offsets are those of the upright sheet.";
  PreviewRequest request = requestFor(portraitPage(), {{25}, {0}}, {});
  EXPECT_THAT(describePreview(makePreview(request)), Not(Contains(kSentence)));
  request.hasLandscapePages = true;
  EXPECT_THAT(describePreview(makePreview(request)), Contains(kSentence));
  request.page = landscapePage(); // a sheet that lies on its side, too
  EXPECT_THAT(describePreview(makePreview(request)), Not(Contains(kSentence)));
}

TEST(PreviewSentences, LossesCanBeSaidAlone) {
  const auto losses = [](const Offset &front, const Offset &back, Turning turning) {
    return describeLosses(makePreview(requestFor(portraitPage(), front, back, turning)));
  };
  EXPECT_THAT(losses({}, {}, Turning::LongEdge), IsEmpty());
  EXPECT_THAT(losses({}, {{-15}, {0}}, Turning::LongEdge),
              ElementsAre("A back that fills its printable area loses 1.5 mm at the left."));
  EXPECT_THAT(losses({{0}, {3}}, {{-15}, {0}}, Turning::OneSided),
              ElementsAre("A front that fills its printable area loses 0.3 mm at the bottom."));
}

TEST(PreviewSentences, LossesAreLimitedToTheContent) {
  const Preview preview = makePreview(requestFor(portraitPage(), {inches(100), {0}}, {}));
  EXPECT_THAT(describePreview(preview), Contains(HasSubstr("loses 28.2 mm at the right")));
}

TEST(PreviewSentences, MentionWhatThePpdLacks) {
  EXPECT_THAT(describePreview(makePreview({}, nullptr)), Contains(HasSubstr("A4")));
  TestPpd ppd;
  EXPECT_THAT(describePreview(makePreview({}, ppd)), Not(Contains(HasSubstr("A4"))));
  ppdPageSize(ppd, nullptr)->right = 0;
  EXPECT_THAT(describePreview(makePreview({}, ppd)), Contains(HasSubstr("whole page")));
}

TEST(PreviewSentences, ExplainWhyThereIsNoBack) {
  TestPpd ppd(TestPpd::option("Duplex", {"None", "DuplexTumble"}));
  EXPECT_THAT(describePreview(makePreview(storeOf({{"LeftRightMargin", "5"}}), ppd)),
              ElementsAre("Two-sided printing is off."));
}

} // namespace
