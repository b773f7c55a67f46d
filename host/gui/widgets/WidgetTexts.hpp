/// Texts of the window's own kinds of controls.
#ifndef IMAGEPOSITION_HOST_WIDGETTEXTS_HPP
#define IMAGEPOSITION_HOST_WIDGETTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// What a window has no room for.
std::string optionsNotShown(std::size_t count);
std::string linesNotShown(std::size_t count);

// The same in the summary.
extern const Text kEnterValue;
extern const Text kDifferingLegend; ///< What the mark beside some lines of the summary means.

} // namespace imageposition::messages

#endif
