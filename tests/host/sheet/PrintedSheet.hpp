/// Reads alignment sheets as they are printed: rendered, and their sides laid over each other.
#ifndef IMAGEPOSITION_TESTS_HOST_SHEET_PRINTEDSHEET_HPP
#define IMAGEPOSITION_TESTS_HOST_SHEET_PRINTEDSHEET_HPP

#include "Measurement.hpp"
#include "ProcessRun.hpp"
#include "SheetLayout.hpp"
#include "TemporaryFolder.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace imageposition::test {

constexpr int kDotsPerMillimetre = 50;
constexpr int kResolution = 1270; // dots per inch: the same

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
inline Dots rendered(const std::string &document, int page, const SheetArea &area) {
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
inline std::vector<double> linesIn(const Dots &dots, Direction direction, double from, double to) {
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
inline Lines combIn(const Dots &dots, Direction direction, int towards) {
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

inline Dots flipped(const Dots &dots, bool isLeftRight) {
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

/// A sheet, both sides of which are rendered.
class PrintedSheet {
public:
  /// `document` is the content of a PDF file with sheets of this layout; `front` is the number of
  /// the sheet's front, from 1. `displaced` is by how much the printer displaces the back, in
  /// millimetres to the right and downwards, as its reader sees it.
  PrintedSheet(const SheetLayout &layout, const std::string &document, int front = 1,
               SheetPoint displaced = {})
      : layout_(layout), displaced_(displaced) {
    const TemporaryFolder folder;
    const std::string path = folder.write("sheet.pdf", document);
    for (int i = 0; i < kVernierCount; i++)
      read(path, front, i);
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
  void read(const std::string &path, int page, int i) {
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
    // What the printer displaces to `zero`.
    const SheetPoint source{whole(zero.x - displaced_.x), whole(zero.y - displaced_.y)};
    back_[i] = combIn(rendered(path, page + 1, around(source)), vernier.direction, 1);
    const bool isAcross = vernier.direction == Direction::Across;
    move(back_[i], isAcross ? source.x + displaced_.x - zero.x : source.y + displaced_.y - zero.y);
    const SheetPoint through = throughTheSheet(layout_, zero);
    const SheetPoint aligned{whole(through.x), whole(through.y)};
    front_[i] = combIn(flipped(rendered(path, page, around(aligned)), layout_.isMirroredLeftRight),
                       vernier.direction, -1);
    if (isAcross == layout_.isMirroredLeftRight)
      move(front_[i], isAcross ? through.x - aligned.x : through.y - aligned.y);
  }

  static void move(Lines &lines, double by) {
    for (double &line : lines.all)
      line += by;
    lines.zero += by;
  }

  SheetLayout layout_;
  SheetPoint displaced_;
  std::array<Lines, kVernierCount> front_;
  std::array<Lines, kVernierCount> back_;
};

} // namespace imageposition::test

#endif
