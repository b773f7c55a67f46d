#include "SheetLayout.hpp"

#include "Units.hpp"

#include <algorithm>
#include <cmath>

namespace imageposition {

namespace {

constexpr double kInset = 4; // for offsets that move the sheet itself
constexpr double kGap = 4;
constexpr double kMiddleWidth = 76;
constexpr double kMiddleHeight = 48;
constexpr double kNarrowestText = 30;
constexpr double kShallowestText = 30;

double millimetres(Point length) { return length.count * kMillimetresPerPoint; }

SheetPoint turned(const SheetLayout &layout, SheetPoint point) {
  return {layout.width - point.x, layout.height - point.y};
}

/// What both sides can print, with equal margins at opposite edges.
SheetArea commonArea(const PageShape &page, const SheetLayout &layout) {
  const PageRectangle &area = page.imageable;
  const double across =
      kInset + std::max(millimetres(area.left), layout.width - millimetres(area.right));
  const double down =
      kInset + std::max(millimetres(area.top), layout.height - millimetres(area.bottom));
  return {across, down, layout.width - across, layout.height - down};
}

/// The first corner is the upper left of the back.
void placeVerniers(SheetLayout &layout, const SheetArea &area) {
  using vernier::kHalfDepth;
  using vernier::kHalfWidth;
  const SheetPoint across{area.left + kHalfWidth, area.top + kHalfDepth};
  const SheetPoint down{area.left + kHalfDepth, area.top + 2 * kHalfDepth + kGap + kHalfWidth};
  layout.verniers[kFirstAcross] = {Direction::Across, across};
  layout.verniers[kFirstDown] = {Direction::Down, down};
  // The turn would exchange a vernier's combs, so that only its place is turned.
  layout.verniers[kSecondAcross] = {Direction::Across, turned(layout, across)};
  layout.verniers[kSecondDown] = {Direction::Down, turned(layout, down)};
}

/// The lower-left corner of the back is free, and the upper right; seen from the front, the same
/// two are where the verniers are not.
void placeWords(SheetLayout &layout, const SheetArea &area, double depth) {
  constexpr double kBeside = 2 * vernier::kHalfWidth + kGap;
  layout.backTop = {area.left + kBeside, area.top, area.right, area.top + depth};
  layout.backBottom = {area.left, area.bottom - depth, area.right - kBeside, area.bottom};
  layout.frontTop = {area.left, area.top, area.right - kBeside, area.top + depth};
  layout.frontBottom = {area.left + kBeside, area.bottom - depth, area.right, area.bottom};
}

} // namespace

TenthMillimetre displacementOf(const VernierReading &reading) noexcept {
  return {reading.whole * 10 + reading.tenths};
}

VernierReading vernierReadingOf(TenthMillimetre displacement) noexcept {
  constexpr std::int64_t kMost = vernier::kLargestWhole * 10 + vernier::kLargestTenth;
  const auto tenths = static_cast<int>(std::clamp<std::int64_t>(displacement.count, -kMost, kMost));
  // Halves towards zero, because a ruler ends at 10.
  const int whole = static_cast<int>(std::copysign((std::abs(tenths) + 4) / 10, tenths));
  return {whole, tenths - whole * 10};
}

std::array<Vernier, 2> rulersIn(const SheetArea &middle) noexcept {
  constexpr double kAside = 28, kBelow = 12.5;
  const SheetPoint centre{(middle.left + middle.right) / 2, (middle.top + middle.bottom) / 2};
  return {Vernier{Direction::Across, {centre.x, centre.y + kBelow}},
          Vernier{Direction::Down, {centre.x + kAside, centre.y}}};
}

SheetPoint throughTheSheet(const SheetLayout &layout, SheetPoint point) noexcept {
  if (layout.isMirroredLeftRight)
    return {layout.width - point.x, point.y};
  return {point.x, layout.height - point.y};
}

std::optional<SheetLayout> layOutSheet(const PageShape &page, Turning turning) {
  SheetLayout layout;
  layout.width = millimetres(page.width);
  layout.height = millimetres(page.height);
  layout.isMirroredLeftRight = turnsAboutVerticalAxis(page, turning);
  const SheetArea area = commonArea(page, layout);
  constexpr double kCorner = 2 * (vernier::kHalfWidth + vernier::kHalfDepth) + kGap;
  const bool areCornersBeside = area.width() >= 4 * vernier::kHalfWidth + kGap;
  const bool areWordsWide = area.width() >= 2 * vernier::kHalfWidth + kGap + kNarrowestText;
  if (area.height() < kCorner + kGap + kShallowestText || !areWordsWide ||
      (!areCornersBeside && area.height() < 2 * kCorner + kGap))
    return std::nullopt;
  placeVerniers(layout, area);
  const double middleTop = (layout.height - kMiddleHeight) / 2;
  const bool isMiddleFree = middleTop >= area.top + kCorner && area.width() >= kMiddleWidth;
  if (isMiddleFree)
    layout.middle = SheetArea{(layout.width - kMiddleWidth) / 2, middleTop,
                              (layout.width + kMiddleWidth) / 2, middleTop + kMiddleHeight};
  placeWords(layout, area, std::min(kCorner, area.height() - kCorner - kGap));
  return layout;
}

} // namespace imageposition
