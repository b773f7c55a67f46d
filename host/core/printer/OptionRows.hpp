/// How much of a printer's options has room in a window.
#ifndef IMAGEPOSITION_HOST_OPTIONROWS_HPP
#define IMAGEPOSITION_HOST_OPTIONROWS_HPP

#include "PrinterOptions.hpp"

#include <cstddef>
#include <vector>

namespace imageposition {

/// Leaves out options until the others need at most `most` rows: one for each, or one for each
/// choice of an option that takes several. Groups that have none left go, too. Returns how many
/// options it left out.
std::size_t cutToRows(std::vector<OptionGroup> &groups, std::size_t most);

} // namespace imageposition

#endif
