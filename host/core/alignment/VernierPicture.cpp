#include "VernierPicture.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace imageposition {

namespace {

using vernier::kBackPitch;
using vernier::kFrontLines;
using vernier::kFrontPitch;
using vernier::kLargestTenth;
using vernier::kLargestWhole;
using vernier::kOverlap;
using vernier::kReach;

constexpr double kThin = 0.12;
constexpr double kThick = 0.25;
constexpr int kNumberedEvery = 5;
constexpr double kNumberSize = 6.5; // points
constexpr double kMinusWidth = 2;   // with its distance from the number
constexpr double kNumberAway = 2;   // from the end of its line, above or below
constexpr double kNumberBeside = 3.4;
constexpr double kNameBeside = 11;
constexpr double kFurther = 2; // how far a zero line reaches beyond the others
constexpr std::int64_t kTenths = 10;

/// Lengths along a scale are to the right or downwards from its zero; depths are from the place
/// where the combs meet towards the back's comb.
SheetPoint at(const Vernier &vernier, double along, double depth) {
  const SheetPoint zero = vernier.zero;
  if (vernier.direction == Direction::Across)
    return {zero.x + along, zero.y + depth};
  return {zero.x + depth, zero.y + along};
}

double numberAway(Direction direction) {
  return direction == Direction::Across ? kNumberAway : kNumberBeside;
}

/// Its digits are centred about the point, for the eye to find their line.
FigureLabel numberAt(SheetPoint centre, int number) {
  const std::string kMinus = "\xe2\x88\x92";
  const double shift = number < 0 ? kMinusWidth / 2 : 0;
  return {{centre.x - shift, centre.y},
          (number < 0 ? kMinus : "") + std::to_string(std::abs(number)),
          kNumberSize};
}

/// `towards` is the sign of the depths on the comb's own side.
Figure comb(const Vernier &vernier, double pitch, int lines, int numbered, int towards) {
  constexpr double kBeyondSpine = 1;
  Figure figure;
  for (int i = -lines; i <= lines; i++) {
    const bool isNumbered = i % kNumberedEvery == 0 && std::abs(i) <= numbered;
    const double inner = kOverlap + (i == 0 ? kFurther : isNumbered ? kFurther / 2 : 0);
    const double outer = kReach + (isNumbered ? kBeyondSpine : 0);
    figure.lines.push_back(
        {at(vernier, i * pitch, -inner * towards), at(vernier, i * pitch, outer * towards), kThin});
    if (isNumbered)
      figure.labels.push_back(
          numberAt(at(vernier, i * pitch, (outer + numberAway(vernier.direction)) * towards), i));
  }
  figure.lines.push_back({at(vernier, -lines * pitch, kReach * towards),
                          at(vernier, lines * pitch, kReach * towards), kThick});
  return figure;
}

/// The bands in which a line of the back continues a line of the front.
std::vector<SheetArea> marksOf(Direction direction, TenthMillimetre displacement) {
  constexpr double kHalfBand = 0.35;
  std::vector<SheetArea> marks;
  for (std::int64_t tenth = -kLargestTenth; tenth <= kLargestTenth; tenth++) {
    const std::int64_t along = displacement.count + 9 * tenth; // in tenths of a millimetre
    const std::int64_t line = along / kTenths;
    if (along % kTenths != 0 || std::abs(line) > kFrontLines)
      continue;
    const auto middle = static_cast<double>(line);
    const Vernier origin{direction, {}};
    const SheetPoint first = at(origin, middle - kHalfBand, -kReach);
    const SheetPoint last = at(origin, middle + kHalfBand, kReach);
    marks.push_back({first.x, first.y, last.x, last.y});
  }
  return marks;
}

const char *arrowOf(Direction direction) {
  return direction == Direction::Across ? "\xe2\x86\x92" : "\xe2\x86\x93";
}

Direction directionOf(VernierIndex index) {
  return index == kFirstAcross || index == kSecondAcross ? Direction::Across : Direction::Down;
}

FigureLabel nameAt(const Vernier &vernier, double along, const std::string &name) {
  constexpr double kSize = 12;
  constexpr double kAway = 6;
  return {at(vernier, along, kAway), name, kSize};
}

double millimetres(TenthMillimetre length) {
  return static_cast<double>(length.count) / static_cast<double>(kTenths);
}

bool isSame(SheetPoint a, SheetPoint b) { return a.x == b.x && a.y == b.y; }

bool isSame(const FigureLine &a, const FigureLine &b) {
  return isSame(a.from, b.from) && isSame(a.to, b.to) && a.width == b.width;
}

bool isSame(const FigureLabel &a, const FigureLabel &b) {
  return isSame(a.centre, b.centre) && a.text == b.text && a.size == b.size;
}

/// A triangle is where its comb's lines are.
bool isSame(const Figure &a, const Figure &b) {
  const auto areSame = [](const auto &one, const auto &other) { return isSame(one, other); };
  return std::equal(a.lines.begin(), a.lines.end(), b.lines.begin(), b.lines.end(), areSame) &&
         std::equal(a.labels.begin(), a.labels.end(), b.labels.begin(), b.labels.end(), areSame);
}

} // namespace

Figure frontComb(const Vernier &vernier) {
  return comb(vernier, kFrontPitch, kFrontLines, kLargestWhole, -1);
}

Figure backComb(const Vernier &vernier) {
  constexpr double kSize = 2;
  Figure figure = comb(vernier, kBackPitch, kLargestTenth, kLargestTenth, 1);
  figure.triangle =
      FigureTriangle{at(vernier, 0, kReach - kSize), at(vernier, 0, kReach), kSize / 3};
  return figure;
}

FigureLabel nameBeside(const Vernier &vernier, const std::string &name) {
  return nameAt(vernier, -kNameBeside, name);
}

std::string vernierName(VernierIndex index) {
  const bool isFirst = index == kFirstAcross || index == kFirstDown;
  return std::string(isFirst ? "A " : "B ") + arrowOf(directionOf(index));
}

Figure creaseRuler(const Vernier &ruler) {
  constexpr double kNumbered = 5, kWhole = 3, kHalf = 1.5; // millimetres
  constexpr double kNameAway = 4;
  Figure figure;
  for (int halves = -2 * kLargestWhole; halves <= 2 * kLargestWhole; halves++) {
    const double along = halves / 2.0;
    const bool isNumbered = halves % (2 * kNumberedEvery) == 0;
    const double length = isNumbered ? kNumbered : halves % 2 == 0 ? kWhole : kHalf;
    figure.lines.push_back({at(ruler, along, 0), at(ruler, along, length), kThin});
    if (isNumbered)
      figure.labels.push_back(
          numberAt(at(ruler, along, length + numberAway(ruler.direction)), halves / 2));
  }
  figure.lines.push_back({at(ruler, -kLargestWhole, 0), at(ruler, kLargestWhole, 0), kThick});
  figure.labels.push_back({at(ruler, kLargestWhole + kNameAway, kWhole / 2),
                           arrowOf(ruler.direction), kNumberSize + 2});
  return figure;
}

bool operator==(const ScalePicture &a, const ScalePicture &b) noexcept {
  return isSame(a.through, b.through) && isSame(a.near, b.near);
}

ScalePicture vernierPicture(VernierIndex index, TenthMillimetre displacement) {
  const Direction direction = directionOf(index);
  const Vernier front{direction, {}};
  const Vernier back{direction, at(front, millimetres(displacement), 0)};
  ScalePicture picture{frontComb(front), backComb(back), marksOf(direction, displacement)};
  constexpr double kHalfName = 2.5;
  const bool isNameInside = millimetres(displacement) - kNameBeside - kHalfName >= -kPictureReach;
  picture.near.labels.push_back(
      nameAt(back, isNameInside ? -kNameBeside : kNameBeside, vernierName(index)));
  return picture;
}

ScalePicture creasePicture(Direction direction, TenthMillimetre place) {
  constexpr double kBeyond = 14, kFold = 0.3;
  const Vernier ruler{direction, {}};
  ScalePicture picture{{}, creaseRuler(ruler), {}};
  const double along = millimetres(place);
  picture.through.lines.push_back({at(ruler, along, -kBeyond), at(ruler, along, kBeyond), kFold});
  return picture;
}

} // namespace imageposition
