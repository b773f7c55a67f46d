#include "SheetOrder.hpp"

#include "Phrases.hpp"

#include <algorithm>
#include <numeric>

namespace imageposition {

namespace {

bool isIn(const PageChoice &choice, int number) {
  if (choice.set != PageSet::All && (number % 2 != 0) != (choice.set == PageSet::Odd))
    return false;
  if (!choice.ranges)
    return true;
  const std::vector<PageRange> &ranges = choice.ranges->ranges();
  return std::any_of(ranges.begin(), ranges.end(), [number](const PageRange &range) {
    return range.first <= number && number <= range.last;
  });
}

} // namespace

SheetOrder::SheetOrder(int sides, const SideOrder &order)
    : sides_(static_cast<std::size_t>(sides)), order_(order) {
  std::iota(sides_.begin(), sides_.end(), 0);
}

SheetOrder::SheetOrder(const DocumentPages &document, const SideOrder &order)
    : order_(order), pages_(document.pages), numberUp_(document.numberUp) {
  const int all = (pages_ + numberUp_ - 1) / numberUp_;
  for (int side = 0; side < all; side++)
    if (isIn(document.choice, side + 1))
      sides_.push_back(side);
}

int SheetOrder::sheets() const noexcept { return isTwoSided() ? (sides() + 1) / 2 : sides(); }

int SheetOrder::firstSide(int sheet) const noexcept {
  return std::clamp(isTwoSided() ? 2 * sheet : sheet, 0, sides());
}

SheetSides SheetOrder::sheet(int sheet) const {
  SheetSides sides;
  const int end = firstSide(sheet + 1);
  for (int side = firstSide(sheet); side < end; side++)
    (sideOf(order_, static_cast<std::size_t>(side)) == Side::Front ? sides.front : sides.back) =
        side;
  return sides;
}

PageRanges SheetOrder::rangesOf(int first, int end) const {
  std::string text;
  for (int i = first; i < end; i++) {
    const int before = sides_[static_cast<std::size_t>(i)] * numberUp_;
    text += (text.empty() ? "" : ",") + std::to_string(before + 1) + "-" +
            std::to_string(std::min(before + numberUp_, pages_));
  }
  return PageRanges::parse(text); // merges them
}

std::string SheetOrder::pages(int first, int end) const {
  return pages_ > 0 && first < end ? rangesOf(first, end).optionValue() : "";
}

int SheetOrder::numberOfPages(int sheet) const {
  const int first = firstSide(sheet), end = firstSide(sheet + 1);
  if (pages_ == 0 || first >= end)
    return 0;
  int count = 0;
  const PageRanges ranges = rangesOf(first, end);
  for (const PageRange &range : ranges.ranges())
    count += range.last - range.first + 1;
  return count;
}

std::string SheetOrder::pagesInWords(int sheet) const {
  const int first = firstSide(sheet), end = firstSide(sheet + 1);
  if (pages_ == 0 || first >= end)
    return {};
  const PageRanges ranges = rangesOf(first, end);
  const PageRange &one = ranges.ranges().front();
  const bool isPair = ranges.ranges().size() == 1 && one.last == one.first + 1;
  return isPair ? messages::inWords({std::to_string(one.first), std::to_string(one.last)})
                : ranges.text();
}

} // namespace imageposition
