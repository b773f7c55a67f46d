/// Strings of the window's controls and views.
#ifndef IMAGEPOSITION_GUI_WIDGETS_WIDGETTEXTS_HPP
#define IMAGEPOSITION_GUI_WIDGETS_WIDGETTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// When there is too much to show.
std::string optionsNotShown(std::size_t count);
std::string linesNotShown(std::size_t count);

extern const Text kEnterValue;
extern const Text kDifferingLegend; ///< Explains the mark beside lines of the summary.

} // namespace imageposition::messages

#endif
