/// Leaves pages out of a PDF file.
#ifndef IMAGEPOSITION_MOVER_CHOSENPAGES_HPP
#define IMAGEPOSITION_MOVER_CHOSENPAGES_HPP

#include "FileContent.hpp"
#include "PageRanges.hpp"

#include <cstddef>

namespace imageposition {

/// Writes the document in `from` with only these of its pages to `to`, which is empty. Keeps the
/// document's forms and layers. Returns the number of pages in `to`. Both files must be regular
/// ones. Throws a `PdfTrouble`, also if the document has none of the pages.
std::size_t choosePages(const Descriptor &from, const Descriptor &to, const PageRanges &pages);

} // namespace imageposition

#endif
