/// A printer's options as text, for printing without a window.
#ifndef IMAGEPOSITION_CORE_PRINTER_OPTIONLIST_HPP
#define IMAGEPOSITION_CORE_PRINTER_OPTIONLIST_HPP

#include "PrinterOptions.hpp"

#include <string>
#include <vector>

namespace imageposition {

/// One line for each group, option and choice, indented by two columns per level:
///
///     General
///       PageSize: Media Size
///       * A4: A4
///         Letter: US Letter
///
/// Each line has the keyword, as `-o` accepts it, and the name to show; both are made `visible`. If
/// the option accepts a custom value, "Custom.VALUE" is one of the lines. A star marks what is
/// chosen.
std::string writeOptionList(const std::vector<OptionGroup> &groups);

} // namespace imageposition

#endif
