/// The string that shows the user which values a setting takes.
#ifndef IMAGEPOSITION_SETTINGS_RANGETEXT_HPP
#define IMAGEPOSITION_SETTINGS_RANGETEXT_HPP

#include "ValueRange.hpp"

#include <string>
#include <string_view>

namespace imageposition {

/// Fills in a localized template: replaces every `maxPlaceholder` by the maximum, then every
/// `minPlaceholder` in the result by the minimum. An empty placeholder replaces nothing. All
/// strings are UTF-8.
std::string composeRangeText(std::string_view localizedTemplate, std::string_view maxPlaceholder,
                             std::string_view minPlaceholder, const ValueRange &range);

} // namespace imageposition

#endif
