/// Where the scales of an alignment sheet are, and what they read.
///
/// A reader holds the sheet against the light, with the back towards them. At two opposite corners,
/// a comb of lines on the back lies on a comb on the front. The front's lines are 1 mm apart, like
/// those of a ruler; the back's are 0.9 mm apart: a vernier. The zero line of the back points at
/// the whole millimetres, and the line of the back that continues a line of the front tells the
/// tenths.
#ifndef IMAGEPOSITION_CORE_ALIGNMENT_SHEETLAYOUT_HPP
#define IMAGEPOSITION_CORE_ALIGNMENT_SHEETLAYOUT_HPP

#include "PreviewGeometry.hpp"

#include <array>
#include <optional>

namespace imageposition {

/// In millimetres from the upper-left corner of a page, downwards.
struct SheetPoint {
  double x = 0;
  double y = 0;
};

struct SheetArea {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  double width() const noexcept { return right - left; }
  double height() const noexcept { return bottom - top; }
};

enum class Direction { Across, Down };

/// A displacement of the back, split into what the two combs of a vernier show.
struct VernierReading {
  int whole = 0;  ///< The front's line next to the zero line of the back, in millimetres.
  int tenths = 0; ///< The back's line that continues a line of the front.
};

/// The combs' dimensions, in millimetres. Across the lines unless it says otherwise.
namespace vernier {
constexpr double kFrontPitch = 1.0;
constexpr double kBackPitch = 0.9;
constexpr int kLargestWhole = 10; ///< The front's lines with a meaning: -10 to 10.
constexpr int kLargestTenth = 5;  ///< The back's lines: -5 to 5.
constexpr int kFrontLines = kLargestWhole + kLargestTenth; ///< On each side of the zero line.
constexpr double kReach = 9;   ///< Along the lines, from where the combs meet to a comb's spine.
constexpr double kOverlap = 2; ///< Along the lines: how far a comb reaches beyond that place.
constexpr double kHalfWidth = 17;
constexpr double kHalfDepth = 16; ///< Along the lines, with the numbers.
} // namespace vernier

/// The displacement, in tenths of a millimetre.
TenthMillimetre displacementOf(const VernierReading &reading) noexcept;
/// The reading for a displacement of up to 10.5 mm; beyond, the nearest one.
VernierReading vernierReadingOf(TenthMillimetre displacement) noexcept;

/// A vernier. The zero lines meet at `zero` if the back is not displaced, seen by the reader of the
/// back. The front's comb is above (`Across`) or to the left (`Down`) of it.
struct Vernier {
  Direction direction = Direction::Across;
  SheetPoint zero;
};

/// The order of a sheet's verniers, and of the numbers that a reader enters.
enum VernierIndex { kFirstAcross, kFirstDown, kSecondAcross, kSecondDown, kVernierCount };

struct SheetLayout {
  double width = 0; ///< In millimetres, as are all lengths.
  double height = 0;
  /// How the front shines through the back: mirrored left-right, or else top-bottom.
  bool isMirroredLeftRight = true;
  /// By `VernierIndex`. The second corner's are those of the first, turned about the middle.
  std::array<Vernier, kVernierCount> verniers;
  /// For words, above and below the middle, as the reader of each side sees it; the same on the
  /// front and the back.
  SheetArea frontTop, frontBottom, backTop, backBottom;
  /// In the middle, for the ruler that the crease crosses, on the front, and the example, on the
  /// back. None if the paper is too small.
  std::optional<SheetArea> middle;
};

/// The rulers of the front that the creases cross, across and down. Their zeros are in the middle
/// of the page, in the ruler's direction; the example, which shines through, is between them.
std::array<Vernier, 2> rulersIn(const SheetArea &middle) noexcept;

/// The point of the front that is seen at `point` by the reader of the back, and the reverse.
SheetPoint throughTheSheet(const SheetLayout &layout, SheetPoint point) noexcept;

/// Lays a sheet out inside the imageable areas of both sides. None if the paper is too small, which
/// is the case below about A6.
std::optional<SheetLayout> layOutSheet(const PageShape &page, Turning turning);

} // namespace imageposition

#endif
