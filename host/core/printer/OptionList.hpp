/// A printer's options as text, for those who print without a window.
#ifndef IMAGEPOSITION_HOST_OPTIONLIST_HPP
#define IMAGEPOSITION_HOST_OPTIONLIST_HPP

#include "PrinterOptions.hpp"

#include <string>
#include <vector>

namespace imageposition {

/// A line for each group, option and choice, each two columns further in than what it belongs to:
///
///     General
///       PageSize: Media Size
///       * A4: A4
///         Letter: US Letter
///
/// Keywords come first, as `-o` takes them, then the texts for people; each is
/// `visible`. "Custom.VALUE" stands for a value that can be given besides the choices. A star is
/// before what is chosen.
std::string writeOptionList(const std::vector<OptionGroup> &groups);

} // namespace imageposition

#endif
