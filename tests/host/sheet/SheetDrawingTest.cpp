// Alignment sheets as they are printed: rendered, and their sides laid over each other.
#include "SheetDrawing.hpp"
#include "PrintedSheet.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdio>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

using namespace imageposition::test;

SheetTask taskFor(const PageShape &page, Turning turning) {
  SheetTask task;
  task.page = page;
  task.turning = turning;
  task.title = "Alignment sheet";
  task.example = "Example";
  task.sheets = {{{"Front", "Sheet 1 of 1", {"Paper: A4"}, {"Advice"}},
                  {"Back", "Sheet 1 of 1", {"Paper: A4"}, {"Advice"}}}};
  return task;
}

PageShape a4() { return {{595.276}, {841.89}, {{12}, {12}, {583}, {830}}}; }

PrintedSheet printed(Turning turning) {
  return {*layOutSheet(a4(), turning), drawSheets(taskFor(a4(), turning)).value_or("")};
}

class Sheet : public testing::TestWithParam<Turning> {
protected:
  static const PrintedSheet &sheet() {
    static const PrintedSheet longEdge = printed(Turning::LongEdge);
    static const PrintedSheet shortEdge = printed(Turning::ShortEdge);
    return GetParam() == Turning::LongEdge ? longEdge : shortEdge;
  }
};

INSTANTIATE_TEST_SUITE_P(Turnings, Sheet, testing::Values(Turning::LongEdge, Turning::ShortEdge));

TEST_P(Sheet, HasItsLinesWhereTheyAreExpected) {
  for (int i = 0; i < kVernierCount; i++) {
    SCOPED_TRACE(i);
    const Lines &front = sheet().front(i), &back = sheet().back(i);
    ASSERT_EQ(front.all.size(), 31U);
    ASSERT_EQ(back.all.size(), 11U);
    EXPECT_NEAR(front.zero, back.zero, 0.02);
    for (std::size_t j = 1; j < front.all.size(); j++)
      EXPECT_NEAR(front.all[j] - front.all[j - 1], 1.0, 0.025);
    for (std::size_t j = 1; j < back.all.size(); j++)
      EXPECT_NEAR(back.all[j] - back.all[j - 1], 0.9, 0.025);
    EXPECT_NEAR(front.all[15], front.zero, 0.025);
    EXPECT_NEAR(back.all[5], back.zero, 0.025);
  }
}

TEST_P(Sheet, ShowsEveryErrorToTheTenth) {
  for (int i = 0; i < kVernierCount; i++)
    for (int tenths = -40; tenths <= 40; tenths++)
      EXPECT_EQ(displacementOf(sheet().seen(i, tenths / 10.0)).count, tenths) << "vernier " << i;
}

TEST_P(Sheet, ShowsErrorsOfUpToTenMillimetres) {
  for (int i = 0; i < kVernierCount; i++)
    for (int tenths = -100; tenths <= 100; tenths += 7)
      EXPECT_EQ(displacementOf(sheet().seen(i, tenths / 10.0)).count, tenths) << "vernier " << i;
}

constexpr double kMostLeft = 0.05 + 0.012; // millimetres; half a tenth, and a rendered dot's half

TEST_P(Sheet, GivesOffsetsThatBringTheSidesTogether) {
  for (const auto &[right, down] : {std::pair(0.0, 0.0), std::pair(1.73, -0.38),
                                    std::pair(-3.96, 2.51), std::pair(0.04, 3.99)}) {
    const auto measured = measure(sheet().layout(), {sheet().reading(right, down)});
    const Offset back = withBackMoved({}, measured).offsets.back;
    EXPECT_LE(std::abs(right + static_cast<double>(back.right.count) / 10), kMostLeft) << right;
    EXPECT_LE(std::abs(down + static_cast<double>(back.down.count) / 10), kMostLeft) << down;
  }
}

TEST_P(Sheet, GivesOffsetsThatStayWhenTheSheetsArePrintedAgain) {
  constexpr double kRight = 1.23, kDown = -2.68;
  const SheetLayout &layout = sheet().layout();
  const auto first = withBackMoved({}, measure(layout, {sheet().reading(kRight, kDown)})).offsets;
  const auto tenth = [](TenthMillimetre length) { return static_cast<double>(length.count) / 10; };
  const auto second =
      withBackMoved(first, measure(layout, {sheet().reading(kRight + tenth(first.back.right),
                                                            kDown + tenth(first.back.down))}));
  EXPECT_EQ(second.offsets, first);
}

// A printer that scatters evenly by up to 0.2 mm, and takes one sheet in three wholly askew.
TEST_P(Sheet, GivesTheMedianOfAPrinterThatScatters) {
  constexpr double kRight = 2.3, kDown = -1.1, kScatter = 0.2;
  std::mt19937 random(7);
  std::uniform_real_distribution<double> scatter(-kScatter, kScatter);
  for (int run = 0; run < 20; run++) {
    std::vector<SheetReading> readings;
    for (int i = 0; i < 2; i++)
      readings.push_back(sheet().reading(kRight + scatter(random), kDown + scatter(random)));
    readings.push_back(sheet().reading(kRight + 1.5, kDown - 1.5));
    const auto measured = measure(sheet().layout(), readings);
    const Offset back = withBackMoved({}, measured).offsets.back;
    EXPECT_LE(std::abs(kRight * 10 + static_cast<double>(back.right.count)), kScatter * 10 + 1);
    EXPECT_LE(std::abs(kDown * 10 + static_cast<double>(back.down.count)), kScatter * 10 + 1);
    EXPECT_GE(measured.spreadRight, 13);
  }
}

TEST(SheetDocument, HasRulersAboutTheMiddleOfTheFront) {
  const TemporaryFolder folder;
  const auto layout = layOutSheet(a4(), Turning::LongEdge);
  const std::string path =
      folder.write("sheet.pdf", drawSheets(taskFor(a4(), Turning::LongEdge)).value_or(""));
  ASSERT_TRUE(layout && layout->middle);
  for (const Vernier &ruler : rulersIn(*layout->middle)) {
    const bool isAcross = ruler.direction == Direction::Across;
    EXPECT_NEAR(isAcross ? ruler.zero.x : ruler.zero.y,
                (isAcross ? layout->width : layout->height) / 2, 0.01);
    constexpr double kHalf = 11, kBeyondTheShorter = 3.3, kEnd = 4.7;
    const Dots dots = rendered(
        path, 1,
        {ruler.zero.x - kHalf, ruler.zero.y - kHalf, ruler.zero.x + kHalf, ruler.zero.y + kHalf});
    const auto lines = linesIn(dots, ruler.direction, kBeyondTheShorter, kEnd);
    ASSERT_EQ(lines.size(), 5U);
    for (int i = 0; i < 5; i++)
      EXPECT_NEAR(lines[static_cast<std::size_t>(i)], 5 * i - 10, 0.03);
  }
}

TEST(SheetDocument, HasAFrontAndABackForEachSheet) {
  SheetTask task = taskFor(a4(), Turning::LongEdge);
  task.sheets.push_back(task.sheets[0]);
  task.sheets.push_back(task.sheets[0]);
  const auto document = drawSheets(task);
  ASSERT_TRUE(document);
  const TemporaryFolder folder;
  const auto facts = runProcess({"pdfinfo", folder.write("sheet.pdf", *document)});
  EXPECT_THAT(facts.output, testing::HasSubstr("Pages:           6"));
  EXPECT_THAT(facts.output, testing::HasSubstr("595.276 x 841.89 pts (A4)"));
}

// Ghostscript, in the filters of PostScript printers, renders a page with a transparency group at
// the printer's resolution, which puts the lines up to half a dot beside their places.
TEST(SheetDocument, IsPrintedAsLines) {
  const auto document = drawSheets(taskFor(a4(), Turning::LongEdge));
  ASSERT_TRUE(document);
  EXPECT_EQ(document->find("/Group"), std::string::npos);
}

TEST(SheetDocument, HasWordsInAnyLanguage) {
  SheetTask task = taskFor(a4(), Turning::LongEdge);
  task.sheets[0].front.name = "\xe8\xa1\xa8\xe9\x9d\xa2";
  task.sheets[0].back.name = "R\xc3\xbc"
                             "ckseite";
  const TemporaryFolder folder;
  const std::string path = folder.write("sheet.pdf", drawSheets(task).value_or(""));
  const auto words = runProcess({"pdftotext", path, "-"});
  EXPECT_THAT(words.output, testing::HasSubstr(task.sheets[0].front.name));
  EXPECT_THAT(words.output, testing::HasSubstr(task.sheets[0].back.name));
}

TEST(SheetDocument, KeepsLongWordsInsideTheImageableArea) {
  for (const Turning turning : {Turning::LongEdge, Turning::ShortEdge}) {
    SheetTask task = taskFor({{297.64}, {419.53}, {{12}, {12}, {285}, {407}}}, turning); // A6
    for (SideWords *const side : {&task.sheets[0].front, &task.sheets[0].back}) {
      side->facts.assign(7, "Papierformat: ein Name, der nicht endet, und noch einer");
      side->advice.assign(4, std::string(30, 'w') + " " + std::string(120, 'x'));
    }
    const TemporaryFolder folder;
    const auto drawn = drawSheets(task);
    ASSERT_TRUE(drawn);
    const std::string path = folder.write("sheet.pdf", *drawn);
    for (const char *const page : {"1", "2"}) {
      const auto box =
          runProcess({"gs", "-q", "-dBATCH", "-dNOPAUSE", "-sDEVICE=bbox",
                      std::string("-dFirstPage=") + page, std::string("-dLastPage=") + page, path});
      int left = 0, bottom = 0, right = 0, top = 0;
      ASSERT_EQ(std::sscanf(box.errors.c_str(), "%%%%BoundingBox: %d %d %d %d", &left, &bottom,
                            &right, &top),
                4)
          << box.errors;
      EXPECT_GE(left, 12);
      EXPECT_GE(bottom, 12);
      EXPECT_LE(right, 286);
      EXPECT_LE(top, 408);
    }
  }
}

TEST(SheetDocument, IsNotDrawnForTinyPaper) {
  EXPECT_FALSE(drawSheets(taskFor({{156}, {243}, {{0}, {0}, {156}, {243}}}, Turning::LongEdge)));
}

} // namespace

} // namespace imageposition
