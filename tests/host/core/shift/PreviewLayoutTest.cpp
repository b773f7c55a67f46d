#include "PreviewLayout.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using namespace imageposition;

Preview previewOf(Offset front, Offset back, Point width = {595}, Point height = {842}) {
  PreviewRequest request;
  request.page.width = width;
  request.page.height = height;
  request.page.imageable = {{12}, {12}, width - Point{12}, height - Point{12}};
  request.front = front;
  request.back = back;
  return makePreview(request);
}

PreviewLayout layoutOf(const Preview &preview) {
  return layOutPreview(preview, preferredPictureSize(13));
}

std::vector<PixelRectangle> placesOf(const PreviewLayout &layout) {
  std::vector<PixelRectangle> places{layout.legend, layout.enlargedTitle, layout.grid,
                                     layout.relation};
  for (const PagePlace &page : layout.pages)
    places.insert(places.end(), {page.title, page.page, page.caption});
  return places;
}

bool overlap(const PixelRectangle &a, const PixelRectangle &b) {
  return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}

TEST(PreviewLayout, NothingOverlapsOrLeavesThePicture) {
  const Point sizes[][2] = {{{595}, {842}}, {{842}, {595}}, {{612}, {792}}, {{100}, {2000}}};
  for (const double lineHeight : {10.0, 13.0, 26.0})
    for (const auto &[width, height] : sizes) {
      SCOPED_TRACE(std::to_string(lineHeight) + ", " + std::to_string(width.count));
      const PictureSize size = preferredPictureSize(lineHeight);
      Preview preview = previewOf({}, {}, width, height);
      preview.hasLandscapePages = width < height;
      const PreviewLayout layout = layOutPreview(preview, size);
      auto places = placesOf(layout);
      if (preview.hasLandscapePages)
        places.push_back(layout.note);
      for (std::size_t i = 0; i < places.size(); i++) {
        EXPECT_GE(places[i].x, 0);
        EXPECT_GE(places[i].y, 0);
        EXPECT_LE(places[i].right(), size.width);
        EXPECT_LE(places[i].bottom(), size.height);
        EXPECT_GT(places[i].height, 0);
        for (std::size_t j = i + 1; j < places.size(); j++)
          EXPECT_FALSE(overlap(places[i], places[j])) << i << " and " << j;
      }
    }
}

TEST(PreviewLayout, PagesKeepTheirShape) {
  const PreviewLayout layout = layoutOf(previewOf({}, {}));
  for (const PagePlace &place : layout.pages)
    EXPECT_NEAR(place.page.width / place.page.height, 595.0 / 842.0, 0.01);
  const PixelRectangle content = layout.onPage(PreviewLayout::Front, {{0}, {0}, {595}, {842}});
  EXPECT_NEAR(content.right(), layout.pages[PreviewLayout::Front].page.right(), 0.5);
  EXPECT_NEAR(content.bottom(), layout.pages[PreviewLayout::Front].page.bottom(), 0.5);
}

TEST(PreviewLayout, TheScaleOfTheGridGrowsInFewSteps) {
  const struct {
    std::int64_t offset;
    std::int64_t square;
  } rows[] = {{0, 2},       {1, 2},
              {10, 2},      {11, 10},
              {-50, 10},    {51, 20},
              {100, 20},    {200, 50},
              {-250, 50},   {251, 100},
              {501, 200},   {1001, 500},
              {2501, 1000}, {2147483647, 500000000}};
  for (const auto &row : rows) {
    EXPECT_EQ(layoutOf(previewOf({{row.offset}, {0}}, {})).squareLength.count, row.square)
        << row.offset;
    EXPECT_EQ(layoutOf(previewOf({}, {{0}, {row.offset}})).squareLength.count, row.square)
        << row.offset;
  }
}

TEST(PreviewLayout, EveryMarkIsInTheGrid) {
  for (const std::int64_t offset : {0, 1, 10, 11, 50, 100, 200, 2147483647})
    for (const std::int64_t sign : {-1, 1}) {
      const PreviewLayout layout =
          layoutOf(previewOf({{sign * offset}, {offset}}, {{offset}, {sign * offset}}));
      EXPECT_TRUE(layout.grid.contains(layout.mark({{sign * offset}, {offset}}))) << offset;
      EXPECT_TRUE(layout.grid.contains(layout.mark({{-offset}, {sign * offset}}))) << offset;
    }
}

TEST(PreviewLayout, MarksAreShiftedBySquares) {
  const PreviewLayout layout = layoutOf(previewOf({{20}, {-10}}, {}));
  ASSERT_EQ(layout.squareLength.count, 10);
  const Pixel centre = layout.gridCentre();
  const Pixel mark = layout.mark({{20}, {-10}});
  EXPECT_DOUBLE_EQ(mark.x - centre.x, 2 * layout.squarePixels);
  EXPECT_DOUBLE_EQ(mark.y - centre.y, -layout.squarePixels);
}

TEST(PreviewLayout, NumbersOnTheAxesStayApartWithSmallSquares) {
  for (const double height : {130.0, 200.0, 288.0, 364.0}) {
    const PreviewLayout layout = layOutPreview(previewOf({{5}, {5}}, {}), {338, height, 13});
    for (const double width : {4.0, 16.0, 25.0}) {
      const int squares = layout.squaresPerNumber(width);
      EXPECT_EQ(squares % 2, 0);
      EXPECT_TRUE(layout.squarePixels == 0 || squares * layout.squarePixels > width + 5) << height;
    }
  }
}

TEST(PreviewLayout, ALabelOfAMarkCoversNoNumberOfTheAxes) {
  for (int offset = -100; offset <= 100; offset += 5) {
    const PreviewLayout layout = layoutOf(previewOf({{offset}, {offset / 3}}, {}));
    const Pixel centre = layout.gridCentre();
    std::vector<PixelRectangle> numbers;
    for (int squares = 2; squares <= 10; squares += 2)
      for (const int at : {-squares * layout.squarePixels, squares * layout.squarePixels}) {
        numbers.push_back({centre.x + at - 9, centre.y + 1, 18, 13});
        numbers.push_back({centre.x - 21, centre.y + at - 6.5, 18, 13});
      }
    for (const Offset &shift : {Offset{}, Offset{{offset}, {offset / 3}}, Offset{{offset}, {0}}})
      for (const bool left : {false, true})
        for (const bool above : {false, true}) {
          const PixelRectangle label =
              layout.labelPlace(layout.mark(shift), {0, 0, 40, 13}, left, above, numbers);
          EXPECT_TRUE(layout.grid.contains({label.x, label.y}));
          EXPECT_LE(label.right(), layout.grid.right());
          EXPECT_LE(label.bottom(), layout.grid.bottom());
          for (const PixelRectangle &number : numbers)
            EXPECT_FALSE(overlap(label, number)) << offset << " " << shift.right.count;
        }
  }
}

TEST(PreviewLayout, ATinyPictureHasNoAreaOfNegativeSize) {
  for (const double side : {0.0, 1.0, 20.0, 60.0, 120.0}) {
    const PreviewLayout layout = layOutPreview(previewOf({{5}, {5}}, {}), {side, side, 13});
    EXPECT_GE(layout.squarePixels, 0);
    for (const PixelRectangle &place : placesOf(layout)) {
      EXPECT_TRUE(std::isfinite(place.x) && std::isfinite(place.y)) << side;
      EXPECT_GE(place.width, 0) << side;
      EXPECT_GE(place.height, 0) << side;
    }
  }
}

} // namespace
