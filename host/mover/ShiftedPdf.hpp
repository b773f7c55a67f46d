/// Moves the image on the pages of a PDF file.
#ifndef IMAGEPOSITION_MOVER_SHIFTEDPDF_HPP
#define IMAGEPOSITION_MOVER_SHIFTEDPDF_HPP

#include "FileContent.hpp"
#include "PageShift.hpp"
#include "PdfDocument.hpp"

#include <functional>

namespace imageposition {

/// Called with the percentage that was written, in ascending order.
using ShiftProgress = std::function<void(int)>;

/// Moves each side of the document in `from` as the plan says, and writes the result to `to`, which
/// is empty. Copies streams as they are, and remembers in the catalogue that the image was moved.
/// Returns the number of pages in `to`.
///
/// The document must have been laid out: an offset on a page of another origin would leave its
/// tiling patterns and its annotations where they were. Both files must be regular ones. Throws a
/// `PdfTrouble`.
std::size_t shiftPages(const Descriptor &from, const Descriptor &to, const ShiftPlan &plan,
                       const ShiftProgress &progress = {});

/// Whether the image of the document was moved by `shiftPages`. Throws a `PdfTrouble`.
bool isShifted(const Descriptor &file);

/// Throws a `PdfTrouble` if the file cannot be read, or if its owner does not allow printing.
void requirePermission(const Descriptor &file);

} // namespace imageposition

#endif
