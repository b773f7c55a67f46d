/// From what a reader sees on alignment sheets to the offsets of both sides.
#ifndef IMAGEPOSITION_CORE_ALIGNMENT_MEASUREMENT_HPP
#define IMAGEPOSITION_CORE_ALIGNMENT_MEASUREMENT_HPP

#include "PrintSettingsStore.hpp"
#include "SheetLayout.hpp"

#include <string_view>
#include <vector>

namespace imageposition {

/// What the verniers of one sheet read: how far the back is displaced against the front, as seen by
/// the reader of the back who looks through the sheet.
struct SheetReading {
  Offset first;  ///< At the first corner.
  Offset second; ///< At the opposite one.
};

/// The largest number that a scale can show, in either direction.
constexpr TenthMillimetre kLargestReading = {10 * vernier::kLargestWhole + vernier::kLargestTenth};

/// Parses one number, in millimetres with a decimal point or comma, and rounds it to a tenth. None
/// for anything else, and for a number that the scales do not have.
std::optional<TenthMillimetre> readScaleNumber(std::string_view text);

/// Parses "X1,Y1,X2,Y2": the readings across and down at the first corner, then at the second, in
/// millimetres with a decimal point. Blanks and semicolons separate the numbers, too. None for
/// anything else, and for a reading that the scales do not have.
std::optional<SheetReading> readSheetReading(std::string_view text);

/// Parses "X,Y": where the creases cross the rulers. The same rules.
std::optional<Offset> readCreaseReading(std::string_view text);

/// What several sheets tell together. In tenths of a millimetre, as the reader of the back sees it.
struct Measurement {
  double right = 0; ///< The displacement of the back in the middle of the sheet: the median.
  double down = 0;
  double spreadRight = 0; ///< From the smallest displacement to the largest.
  double spreadDown = 0;
  double cornersRight = 0; ///< By how much more the second corner is displaced than the first.
  double cornersDown = 0;
  double angle = 0;   ///< By which the back is turned clockwise, in degrees.
  double stretch = 0; ///< By which the back is larger, in percent.
  double left = 0;    ///< What offsets leave at the worst corner of the sheet.
  int sheets = 0;
  /// The number of a sheet that was probably misread, counted from 1: it differs from the
  /// others by more than 2 mm. 0 for none, and for fewer than three sheets.
  int doubtful = 0;

  /// Whether the corners disagree by more than what a reader can misread.
  bool areCornersApart() const noexcept;
};

/// `readings` has at least one.
Measurement measure(const SheetLayout &layout, const std::vector<SheetReading> &readings);

/// The offsets of both sides, each as seen by the reader of that side.
struct SideOffsets {
  Offset front;
  Offset back;
};

/// Of a job's settings.
SideOffsets sideOffsetsIn(const PrintSettingsStore &settings);
/// Sets all of them, with separate offsets for the back.
void setSideOffsets(PrintSettingsStore &settings, const SideOffsets &offsets);

bool operator==(const SideOffsets &a, const SideOffsets &b) noexcept;

/// The largest offset of most printers, in either direction.
constexpr TenthMillimetre kLargestOffset = {100};

/// Offsets that may have been limited to the largest one.
struct CorrectedOffsets {
  SideOffsets offsets;
  bool isLimited = false;
};

/// Moves the back onto the front. `present` are the offsets with which the sheets were printed. Of
/// a displacement in half tenths, the half is left: moving by more, and then measuring again, would
/// move the back to and fro. `most` is the printer's largest offset.
CorrectedOffsets withBackMoved(const SideOffsets &present, const Measurement &measurement,
                               TenthMillimetre most = kLargestOffset);

/// Moves both sides on the paper, so that the front's rulers have their zeros at the creases. The
/// back follows the front.
CorrectedOffsets withBothMoved(const SideOffsets &present, const Offset &crease,
                               const SheetLayout &layout, TenthMillimetre most = kLargestOffset);

/// The offsets that do the same with the other turning: the printer displaces the same edge of the
/// sheet, which is the opposite one of the back's image.
SideOffsets forOtherTurning(const SideOffsets &offsets) noexcept;

} // namespace imageposition

#endif
