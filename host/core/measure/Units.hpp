/// Lengths on a page. Each unit is a type, which prevents mixing them up.
#ifndef IMAGEPOSITION_CORE_MEASURE_UNITS_HPP
#define IMAGEPOSITION_CORE_MEASURE_UNITS_HPP

#include <cstdint>
#include <string>

namespace imageposition {

/// Tenths of a millimetre: the unit of a job's offsets. The type can hold the sum and the
/// difference of any two offsets.
struct TenthMillimetre {
  std::int64_t count = 0;
};

/// A PostScript point, 1/72 inch: the unit of page sizes.
struct Point {
  double count = 0;
};

constexpr double kMillimetresPerPoint = 25.4 / 72;
constexpr double kTenthMillimetresPerPoint = 10 * kMillimetresPerPoint;

constexpr Point toPoints(TenthMillimetre length) noexcept {
  return {static_cast<double>(length.count) / kTenthMillimetresPerPoint};
}

/// Rounds to the nearest tenth, halves away from zero. For lengths up to 10^15 points.
TenthMillimetre toTenthMillimetres(Point length) noexcept;

/// Millimetres for display, with a decimal only if it is not zero: "2.5", "-0.1", "10".
std::string numberText(TenthMillimetre length);

/// The same with the unit: "2.5 mm".
std::string lengthText(TenthMillimetre length);

constexpr TenthMillimetre operator+(TenthMillimetre a, TenthMillimetre b) noexcept {
  return {a.count + b.count};
}
constexpr TenthMillimetre operator-(TenthMillimetre a, TenthMillimetre b) noexcept {
  return {a.count - b.count};
}
constexpr TenthMillimetre operator-(TenthMillimetre a) noexcept { return {-a.count}; }
constexpr bool operator==(TenthMillimetre a, TenthMillimetre b) noexcept {
  return a.count == b.count;
}
constexpr bool operator!=(TenthMillimetre a, TenthMillimetre b) noexcept { return !(a == b); }

constexpr Point operator+(Point a, Point b) noexcept { return {a.count + b.count}; }
constexpr Point operator-(Point a, Point b) noexcept { return {a.count - b.count}; }
constexpr bool operator==(Point a, Point b) noexcept { return a.count == b.count; }
constexpr bool operator!=(Point a, Point b) noexcept { return !(a == b); }
constexpr bool operator<(Point a, Point b) noexcept { return a.count < b.count; }

} // namespace imageposition

#endif
