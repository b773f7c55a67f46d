/// How far each page of a job moves if the dialog moves the image itself.
#ifndef IMAGEPOSITION_CORE_SHIFT_PAGESHIFT_HPP
#define IMAGEPOSITION_CORE_SHIFT_PAGESHIFT_HPP

#include "PreviewGeometry.hpp"

#include <cstddef>

namespace imageposition {

/// The sides of a sheet as the printer's mechanics see them: the first side that the printer gets
/// of a document is a front.
enum class Side { Front, Back };

/// Which sides of the sheets a job prints.
enum class PrintedSides {
  Both,       ///< Two-sided.
  FrontsOnly, ///< One-sided.
  BacksOnly,  ///< One-sided, on sheets that were turned by hand.
};

/// How the pages of a document become the sides that a printer gets.
struct SideOrder {
  PrintedSides sides = PrintedSides::Both;
  /// Whether the printer gets the last page first. Two-sided jobs then begin with a blank side if
  /// the number of pages is odd, so the first page is always on a back.
  bool isReversed = false;
};

/// The side on which a page is printed. `index` counts the pages of one document from 0, in reading
/// order, after page ranges and the number of pages per side were applied.
Side sideOf(const SideOrder &order, std::size_t index) noexcept;

/// A vector in a page's default user space: to the right and upwards before the page is rotated.
struct Translation {
  Point x;
  Point y;
};

/// Whether a page can have a user space with units of this length, in points. Others are noise: a
/// sheet is never as large or as small.
bool isUsableUnit(double userUnit) noexcept;

/// Converts an offset, which is seen on the rotated page. `rotation` is the page's /Rotate,
/// clockwise in degrees; any multiple of 90, other values count as 0. `userUnit` is the length of a
/// unit of the user space in points; values that are not usable count as 1.
Translation translationOf(const Offset &offset, long long rotation, double userUnit = 1) noexcept;

/// What moves the pages of one document.
struct ShiftPlan {
  Offset front;
  Offset back;
  SideOrder order;
  /// Appends a blank page to an odd number of pages, for the next document to begin with a front.
  bool isPadded = false;
  /// Also moves a document that was moved before.
  bool isMovedAgain = false;

  /// Whether any side moves. Otherwise documents are laid out only.
  bool isMoving() const noexcept { return !(front == Offset{}) || !(back == Offset{}); }
  const Offset &offsetOf(Side side) const noexcept { return side == Side::Front ? front : back; }
};

bool operator==(const ShiftPlan &a, const ShiftPlan &b) noexcept;

} // namespace imageposition

#endif
