// The arithmetic of the offsets: moving the contents of a page places them like moving the page's
// box under them, whatever its rotation, unit and box. Boxes may be upside down.
#include "PageShift.hpp"

#include "Check.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

using namespace imageposition;
using imageposition::fuzz::check;

namespace {

struct Box {
  double left, bottom, right, top;
};

struct Place {
  double right, down;
};

/// The input's next bytes; zeros once it has ended.
template <typename Value> Value next(const unsigned char *&data, std::size_t &size) {
  Value value{};
  const std::size_t count = std::min(sizeof value, size);
  std::memcpy(&value, data, count);
  data += count;
  size -= count;
  return value;
}

/// Where a page shows a point of its user space, in points. Each rotation is written out.
Place shown(const Box &box, int quarters, double unit, double x, double y) {
  const Place from[] = {{x - box.left, box.top - y},
                        {y - box.bottom, x - box.left},
                        {box.right - x, y - box.bottom},
                        {box.top - y, box.right - x}};
  return {from[quarters].right * unit, from[quarters].down * unit};
}

/// Moves the box against the offset, by turning the offset as the page is turned.
Box movedBox(const Box &box, const Offset &offset, int quarters, double unit) {
  const double angle = quarters * M_PI / 2;
  const double right = toPoints(offset.right).count / unit;
  const double up = -toPoints(offset.down).count / unit;
  const double x = right * std::cos(angle) - up * std::sin(angle);
  const double y = right * std::sin(angle) + up * std::cos(angle);
  return {box.left - x, box.bottom - y, box.right - x, box.top - y};
}

void checkSides(const SideOrder &order, std::size_t index) {
  const Side side = sideOf(order, index), following = sideOf(order, index + 1);
  if (order.sides == PrintedSides::Both)
    check(side != following, "two-sided pages alternate");
  else
    check(side == following, "one-sided pages are all on the same side");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const auto number = [&] { return static_cast<double>(next<std::int16_t>(data, size)); };
  const Box box{number(), number(), number(), number()};
  const double x = number(), y = number();
  const Offset offset{{next<std::int16_t>(data, size)}, {next<std::int16_t>(data, size)}};
  const auto rotation = next<std::int64_t>(data, size);
  const auto userUnit = next<double>(data, size);
  const SideOrder order{static_cast<PrintedSides>(next<unsigned char>(data, size) % 3),
                        next<unsigned char>(data, size) % 2 != 0};
  checkSides(order, next<std::uint32_t>(data, size));

  const Translation by = translationOf(offset, rotation, userUnit);
  check(std::isfinite(by.x.count) && std::isfinite(by.y.count), "a translation has finite numbers");
  const std::int64_t turn = (rotation % 360 + 360) % 360;
  const int quarters = turn % 90 == 0 ? static_cast<int>(turn / 90) : 0;
  const double unit = isUsableUnit(userUnit) ? userUnit : 1;
  const Place one = shown(box, quarters, unit, x + by.x.count, y + by.y.count);
  const Place other = shown(movedBox(box, offset, quarters, unit), quarters, unit, x, y);
  constexpr double kExact = 1e-9;
  const double tolerance = kExact * (1 + unit) * 1e5;
  check(std::abs(one.right - other.right) <= tolerance &&
            std::abs(one.down - other.down) <= tolerance,
        "both ways place alike");
  const Place before = shown(box, quarters, unit, x, y);
  check(std::abs(one.right - before.right - toPoints(offset.right).count) <= tolerance &&
            std::abs(one.down - before.down - toPoints(offset.down).count) <= tolerance,
        "the shown page moves by the offset");
  return 0;
}
