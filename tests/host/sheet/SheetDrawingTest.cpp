// Alignment sheets as they are printed: rendered, and their sides laid over each other.
#include "SheetDrawing.hpp"
#include "Measurement.hpp"

#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

using namespace imageposition::test;

constexpr int kDotsPerMillimetre = 50;
constexpr int kResolution = 1270; // dots per inch: the same

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

/// Dark and light dots of a part of a page.
struct Dots {
  int width = 0;
  int height = 0;
  std::string grey; ///< A byte each, row by row; 0 is black.

  double darkness(int x, int y) const {
    return 1 - static_cast<unsigned char>(grey[static_cast<std::size_t>(y * width + x)]) / 255.0;
  }
};

/// Renders `area` of a page as it is printed.
Dots rendered(const std::string &document, int page, const SheetArea &area) {
  const auto dots = [](double length) {
    return std::to_string(std::lround(length * kDotsPerMillimetre));
  };
  const std::string number = std::to_string(page);
  const auto result = runProcess({"pdftoppm", "-gray", "-r", std::to_string(kResolution), "-f",
                                  number, "-l", number, "-x", dots(area.left), "-y", dots(area.top),
                                  "-W", dots(area.width()), "-H", dots(area.height()), document});
  EXPECT_EQ(result.status, 0) << result.errors;
  Dots picture;
  int most = 0, start = 0;
  if (std::sscanf(result.output.c_str(), "P5 %d %d %d%n", &picture.width, &picture.height, &most,
                  &start) != 3)
    return {};
  picture.grey = result.output.substr(static_cast<std::size_t>(start) + 1);
  return picture;
}

/// The places of the lines along a comb, in millimetres from where the undisplaced zero lines meet,
/// as the reader of the back sees them.
struct Lines {
  std::vector<double> all;
  double zero = NAN; ///< The line that reaches furthest.
};

/// The middles of the dark runs across a strip between two depths, of which the comb's are on
/// side `towards`.
std::vector<double> linesIn(const Dots &dots, Direction direction, double from, double to) {
  const bool isAcross = direction == Direction::Across;
  const int length = isAcross ? dots.width : dots.height;
  const int depth = isAcross ? dots.height : dots.width;
  const int first = depth / 2 + static_cast<int>(std::lround(from * kDotsPerMillimetre));
  const int last = depth / 2 + static_cast<int>(std::lround(to * kDotsPerMillimetre));
  std::vector<double> lines;
  double weight = 0, moment = 0;
  for (int along = 0; along <= length; along++) {
    double dark = 0;
    for (int d = first; d < last && along < length; d++)
      dark += (isAcross ? dots.darkness(along, d) : dots.darkness(d, along)) / (last - first);
    constexpr double kDark = 0.9; // all of the strip, as no letter is
    if (dark > kDark) {
      weight += dark;
      moment += dark * (along + 0.5);
    } else if (weight > 0) {
      lines.push_back((moment / weight - length / 2.0) / kDotsPerMillimetre);
      weight = moment = 0;
    }
  }
  return lines;
}

/// `towards` is the sign of the depths on the comb's own side.
Lines combIn(const Dots &dots, Direction direction, int towards) {
  const auto strip = [&](double near, double far) {
    return linesIn(dots, direction, std::min(near * towards, far * towards),
                   std::max(near * towards, far * towards));
  };
  constexpr double kNear = 2, kFar = 6;               // the comb itself
  constexpr double kZeroNear = -3.8, kZeroFar = -3.2; // on the other comb's side
  Lines lines{strip(kNear, kFar), NAN};
  const auto zero = strip(kZeroNear, kZeroFar);
  EXPECT_EQ(zero.size(), 1U);
  if (zero.size() == 1)
    lines.zero = zero[0];
  return lines;
}

Dots flipped(const Dots &dots, bool isLeftRight) {
  Dots result = dots;
  for (int y = 0; y < dots.height; y++)
    for (int x = 0; x < dots.width; x++) {
      const int fromX = isLeftRight ? dots.width - 1 - x : x;
      const int fromY = isLeftRight ? y : dots.height - 1 - y;
      result.grey[static_cast<std::size_t>(y * dots.width + x)] =
          dots.grey[static_cast<std::size_t>(fromY * dots.width + fromX)];
    }
  return result;
}

/// A sheet of which one was printed, and both sides rendered.
class PrintedSheet {
public:
  PrintedSheet(const PageShape &page, Turning turning) : layout_(*layOutSheet(page, turning)) {
    const TemporaryFolder folder;
    const auto document = drawSheets(taskFor(page, turning));
    const std::string path = folder.write("sheet.pdf", document.value_or(""));
    for (int i = 0; i < kVernierCount; i++)
      read(path, i);
  }

  const SheetLayout &layout() const { return layout_; }

  /// What a reader sees who holds it against the light, if the back is displaced by that much, in
  /// millimetres.
  VernierReading seen(int vernier, double displacement) const {
    const Lines &front = front_[vernier], &back = back_[vernier];
    const double zero = back.zero + displacement - front.zero;
    double nearest = 1;
    std::vector<int> coincident;
    for (std::size_t i = 0; i < back.all.size(); i++) {
      double distance = 1;
      for (const double line : front.all)
        distance = std::min(distance, std::abs(back.all[i] + displacement - line));
      constexpr double kSame = 0.01;
      if (distance < nearest - kSame)
        coincident.clear();
      if (distance < nearest + kSame)
        coincident.push_back(static_cast<int>(i) - static_cast<int>(back.all.size()) / 2);
      nearest = std::min(nearest, distance);
    }
    constexpr int kEnd = vernier::kLargestTenth;
    if (coincident.front() == -kEnd || coincident.back() == kEnd)
      return {static_cast<int>(std::floor(zero)), kEnd}; // half a millimetre between two
    return {static_cast<int>(std::lround(zero)), coincident.front()};
  }

  /// What a reader notes for one sheet whose back is displaced as a whole.
  SheetReading reading(double right, double down) const {
    const auto tenths = [&](int vernier) {
      const bool isAcross =
          layout_.verniers[static_cast<std::size_t>(vernier)].direction == Direction::Across;
      return displacementOf(seen(vernier, isAcross ? right : down));
    };
    return {{tenths(kFirstAcross), tenths(kFirstDown)},
            {tenths(kSecondAcross), tenths(kSecondDown)}};
  }

  const Lines &front(int vernier) const { return front_[vernier]; }
  const Lines &back(int vernier) const { return back_[vernier]; }

private:
  void read(const std::string &path, int i) {
    const Vernier &vernier = layout_.verniers[static_cast<std::size_t>(i)];
    constexpr double kHalf = 15.5; // millimetres: the lines, not the numbers
    // Whole dots, for which both sides are rendered alike.
    const auto whole = [](double length) {
      return std::round(length * kDotsPerMillimetre) / kDotsPerMillimetre;
    };
    const SheetPoint zero{whole(vernier.zero.x), whole(vernier.zero.y)};
    const auto around = [](SheetPoint point) -> SheetArea {
      return {point.x - kHalf, point.y - kHalf, point.x + kHalf, point.y + kHalf};
    };
    back_[i] = combIn(rendered(path, 2, around(zero)), vernier.direction, 1);
    const SheetPoint through = throughTheSheet(layout_, zero);
    const SheetPoint aligned{whole(through.x), whole(through.y)};
    front_[i] = combIn(flipped(rendered(path, 1, around(aligned)), layout_.isMirroredLeftRight),
                       vernier.direction, -1);
    const double shift = layout_.isMirroredLeftRight && vernier.direction == Direction::Across
                             ? through.x - aligned.x
                         : !layout_.isMirroredLeftRight && vernier.direction == Direction::Down
                             ? through.y - aligned.y
                             : 0;
    for (double &line : front_[i].all)
      line += shift;
    front_[i].zero += shift;
  }

  SheetLayout layout_;
  std::array<Lines, kVernierCount> front_;
  std::array<Lines, kVernierCount> back_;
};

PageShape a4() { return {{595.276}, {841.89}, {{12}, {12}, {583}, {830}}}; }

class Sheet : public testing::TestWithParam<Turning> {
protected:
  static const PrintedSheet &sheet() {
    static const PrintedSheet longEdge(a4(), Turning::LongEdge);
    static const PrintedSheet shortEdge(a4(), Turning::ShortEdge);
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
