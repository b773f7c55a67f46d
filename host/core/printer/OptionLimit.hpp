/// Limiting a printer's options to what fits into a window.
#ifndef IMAGEPOSITION_CORE_PRINTER_OPTIONLIMIT_HPP
#define IMAGEPOSITION_CORE_PRINTER_OPTIONLIMIT_HPP

#include "PrinterOptions.hpp"

#include <cstddef>
#include <vector>

namespace imageposition {

/// Removes options until the rest need at most `most` rows: one for each option, or one for each
/// choice of an option that accepts several. Also removes groups that become empty. Returns the
/// number of removed options.
std::size_t cutToRows(std::vector<OptionGroup> &groups, std::size_t most);

} // namespace imageposition

#endif
