#include "PageShift.hpp"

namespace imageposition {

Side sideOf(const SideOrder &order, std::size_t index) noexcept {
  if (order.sides != PrintedSides::Both)
    return order.sides == PrintedSides::FrontsOnly ? Side::Front : Side::Back;
  return (index % 2 == 0) != order.isReversed ? Side::Front : Side::Back;
}

bool isUsableUnit(double userUnit) noexcept {
  constexpr double kShortest = 0.001, kLongest = 1e6;
  return userUnit >= kShortest && userUnit <= kLongest; // false for NaN
}

Translation translationOf(const Offset &offset, long long rotation, double userUnit) noexcept {
  const double unit = isUsableUnit(userUnit) ? userUnit : 1;
  const double right = toPoints(offset.right).count / unit;
  const double down = toPoints(offset.down).count / unit;
  switch ((rotation % 360 + 360) % 360) {
  case 90:
    return {{down}, {right}};
  case 180:
    return {{-right}, {down}};
  case 270:
    return {{-down}, {-right}};
  default:
    return {{right}, {-down}};
  }
}

bool operator==(const ShiftPlan &a, const ShiftPlan &b) noexcept {
  return a.front == b.front && a.back == b.back && a.order.sides == b.order.sides &&
         a.order.isReversed == b.order.isReversed && a.isPadded == b.isPadded &&
         a.isMovedAgain == b.isMovedAgain;
}

} // namespace imageposition
