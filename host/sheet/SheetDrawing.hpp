/// Draws alignment sheets.
#ifndef IMAGEPOSITION_SHEET_SHEETDRAWING_HPP
#define IMAGEPOSITION_SHEET_SHEETDRAWING_HPP

#include "SheetTask.hpp"

#include <optional>
#include <string>

namespace imageposition {

/// A PDF document with a front and a back for each sheet. None if the paper is too small. Throws a
/// `std::runtime_error` if it cannot be drawn.
std::optional<std::string> drawSheets(const SheetTask &task);

} // namespace imageposition

#endif
