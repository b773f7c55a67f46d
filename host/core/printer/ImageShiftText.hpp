/// Adds the offsets of the image to the description of a printer whose driver knows none.
#ifndef IMAGEPOSITION_CORE_PRINTER_IMAGESHIFTTEXT_HPP
#define IMAGEPOSITION_CORE_PRINTER_IMAGESHIFTTEXT_HPP

#include <cups/ppd.h>

#include <optional>
#include <string>
#include <string_view>

namespace imageposition {

/// Returns the text of a PPD with the attribute and the four options for which the panel looks, and
/// with a mark by which `isImageShiftAdded` recognizes them. `ppd` is the text of a PPD,
/// uncompressed. None if the attribute is "true" already, or if the PPD uses the name of one of the
/// options for something else.
std::optional<std::string> withImageShift(std::string_view ppd);

/// Whether `withImageShift` has added the attribute, so the printer's driver moves nothing. `ppd`
/// may be null.
bool isImageShiftAdded(ppd_file_t *ppd);

} // namespace imageposition

#endif
