#include "PreviewLayout.hpp"

#include <algorithm>
#include <cmath>

namespace imageposition {
namespace {

// Squares of the grid on each side of its centre; also the most that a mark moves.
constexpr int kSquares = 5;
constexpr double kHalfSquare = 0.5;

// Leaves room for content that is shifted beyond the page.
double columnGap(const PictureSize &size) { return std::round(size.lineHeight); }
double margin(const PictureSize &size) { return std::round(size.lineHeight / 2); }

/// Allocates lines of text and other areas from top to bottom.
class Column {
public:
  explicit Column(const PictureSize &size)
      : x_(margin(size)), y_(margin(size)), width_(std::max(0.0, size.width - 2 * margin(size))),
        lineHeight_(size.lineHeight) {}

  PixelRectangle line() { return take(lineHeight_); }
  PixelRectangle take(double height) {
    const PixelRectangle taken{x_, y_, width_, std::max(0.0, height)};
    y_ = taken.bottom();
    return taken;
  }
  void skip(double height) { y_ += height; }
  double top() const { return y_; }

private:
  double x_;
  double y_;
  double width_;
  double lineHeight_;
};

bool overlap(const PixelRectangle &a, const PixelRectangle &b) {
  return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}

PixelRectangle third(const PixelRectangle &row, std::size_t index, double gap) {
  const double width = std::max(0.0, std::floor((row.width - 2 * gap) / 3));
  return {row.x + static_cast<double>(index) * (width + gap), row.y, width, row.height};
}

/// 0.2 mm, then 1, 2, 5, 10, ...: few steps, because a scale that changes often is hard to follow.
std::int64_t nextSquare(std::int64_t tenths) {
  constexpr std::int64_t kSmallest = 2;
  constexpr std::int64_t kMillimetre = 10;
  if (tenths == kSmallest)
    return kMillimetre;
  std::int64_t leading = tenths;
  while (leading % 10 == 0)
    leading /= 10;
  return leading == 2 ? tenths / 2 * 5 : tenths * 2;
}

std::int64_t magnitude(TenthMillimetre length) {
  return length.count < 0 ? -length.count : length.count;
}

TenthMillimetre squareFor(const Preview &preview) {
  const auto farthest = [](const Offset &offset) {
    return std::max(magnitude(offset.right), magnitude(offset.down));
  };
  std::int64_t reach = farthest(preview.front.offset);
  if (preview.back)
    reach = std::max(reach, farthest(preview.back->offset));
  std::int64_t square = 2;
  while (reach > square * kSquares)
    square = nextSquare(square);
  return {square};
}

void layOutPages(PreviewLayout &layout, const Preview &preview, const PictureSize &size,
                 Column &column) {
  const double gap = columnGap(size);
  const PixelRectangle titles = column.line();
  column.skip(margin(size) / 2);
  // The pages and the grid share what remains after nine lines, perhaps a note, and the gaps.
  const double lines = preview.hasLandscapePages ? 10.5 : 9.5;
  const double pagesHeight = std::max(0.0, (size.height - lines * size.lineHeight) / 2);
  const double width = third(titles, 0, gap).width;
  layout.pixelsPerPoint =
      std::min(width / preview.page.width.count, pagesHeight / preview.page.height.count);
  const double pageWidth = std::round(preview.page.width.count * layout.pixelsPerPoint);
  const double pageHeight = std::round(preview.page.height.count * layout.pixelsPerPoint);
  const PixelRectangle row = column.take(pageHeight);
  column.skip(margin(size) / 2);
  const PixelRectangle captions = column.line();
  for (std::size_t i = 0; i < layout.pages.size(); i++) {
    const PixelRectangle place = third(row, i, gap);
    const double left = std::round(place.x + (place.width - pageWidth) / 2);
    layout.pages[i] = {third(titles, i, gap),
                       {left, std::round(row.y), pageWidth, pageHeight},
                       third(captions, i, gap)};
  }
}

void layOutGrid(PreviewLayout &layout, const Preview &preview, const PictureSize &size,
                Column &column) {
  layout.enlargedTitle = column.line();
  column.skip(margin(size) / 2);
  const double height = size.height - column.top() - size.lineHeight - 1.5 * margin(size);
  layout.grid = column.take(std::floor(height));
  layout.grid.y = std::round(layout.grid.y);
  column.skip(margin(size) / 2);
  layout.relation = column.line();
  layout.squarePixels = static_cast<int>(layout.grid.height / (2 * (kSquares + kHalfSquare)));
  layout.squareLength = squareFor(preview);
}

} // namespace

PictureSize preferredPictureSize(double lineHeight) {
  return {std::round(28 * lineHeight), std::round(28 * lineHeight), lineHeight};
}

Pixel PreviewLayout::gridCentre() const noexcept {
  return {std::floor(grid.x + grid.width / 2), std::floor(grid.y + grid.height / 2)};
}

int PreviewLayout::squaresPerNumber(double width) const noexcept {
  constexpr double kGap = 6;
  int squares = 2;
  while (squarePixels > 0 && squares * squarePixels < width + kGap)
    squares += 2;
  return squares;
}

Pixel PreviewLayout::mark(const Offset &offset) const noexcept {
  const double pixels = squarePixels / static_cast<double>(squareLength.count);
  const Pixel centre = gridCentre();
  return {centre.x + static_cast<double>(offset.right.count) * pixels,
          centre.y + static_cast<double>(offset.down.count) * pixels};
}

PixelRectangle PreviewLayout::labelPlace(const Pixel &mark, const PixelRectangle &size,
                                         bool toTheLeft, bool above,
                                         const std::vector<PixelRectangle> &taken) const {
  constexpr double kAside = 11; // beside the mark's circle
  const auto placed = [&](bool left, bool up, double away) -> PixelRectangle {
    const double x = left ? mark.x - kAside - size.width : mark.x + kAside;
    const double y = up ? mark.y - away - size.height : mark.y + away;
    return {std::round(std::min(std::max(x, grid.x + 1), grid.right() - size.width - 1)),
            std::round(std::min(std::max(y, grid.y + 1), grid.bottom() - size.height - 1)),
            size.width, size.height};
  };
  constexpr double kNear = 4;
  for (const double away : {kNear, kNear + size.height, kNear + 2 * size.height})
    for (const bool left : {toTheLeft, !toTheLeft})
      for (const bool up : {above, !above}) {
        const PixelRectangle place = placed(left, up, away);
        if (std::none_of(taken.begin(), taken.end(),
                         [&](const PixelRectangle &other) { return overlap(place, other); }))
          return place;
      }
  return placed(toTheLeft, above, kNear);
}

PixelRectangle PreviewLayout::onPage(Place place, const PageRectangle &rectangle) const noexcept {
  const PixelRectangle &page = pages[place].page;
  return {page.x + rectangle.left.count * pixelsPerPoint,
          page.y + rectangle.top.count * pixelsPerPoint,
          (rectangle.right - rectangle.left).count * pixelsPerPoint,
          (rectangle.bottom - rectangle.top).count * pixelsPerPoint};
}

PixelRectangle PreviewLayout::imageOnPage(Place place, Point width, Point height,
                                          const Offset &offset) const noexcept {
  const PixelRectangle &page = pages[place].page;
  const double wide = std::round(width.count * pixelsPerPoint);
  const double high = std::round(height.count * pixelsPerPoint);
  const double x = page.x + (page.width - wide) / 2 + toPoints(offset.right).count * pixelsPerPoint;
  const double y = page.y + (page.height - high) / 2 + toPoints(offset.down).count * pixelsPerPoint;
  return {std::round(x), std::round(y), wide, high};
}

PreviewLayout layOutOnePage(const Preview &preview, PreviewLayout::Place place,
                            const PixelRectangle &room) {
  PreviewLayout layout;
  const PageShape &page = preview.page;
  layout.pixelsPerPoint =
      std::max(0.0, std::min(room.width / page.width.count, room.height / page.height.count));
  const double width = std::round(page.width.count * layout.pixelsPerPoint);
  const double height = std::round(page.height.count * layout.pixelsPerPoint);
  layout.pages[place].page = {std::round(room.x + (room.width - width) / 2),
                              std::round(room.y + (room.height - height) / 2), width, height};
  return layout;
}

PreviewLayout layOutPreview(const Preview &preview, const PictureSize &size) {
  PreviewLayout layout;
  Column column(size);
  layOutPages(layout, preview, size, column);
  column.skip(margin(size) / 2);
  layout.legend = column.line();
  if (preview.hasLandscapePages)
    layout.note = column.line();
  column.skip(margin(size));
  layOutGrid(layout, preview, size, column);
  return layout;
}

} // namespace imageposition
