/// The text that tells a person which values a setting takes.
#ifndef IMAGEPOSITION_SETTINGS_RANGETEXT_HPP
#define IMAGEPOSITION_SETTINGS_RANGETEXT_HPP

#include "ValueRange.hpp"

#include <string>
#include <string_view>

namespace imageposition {

/// Fills a localized template: every occurrence of `maxMark` becomes the maximum, then every
/// occurrence of `minMark` in that text becomes the minimum. An empty mark replaces nothing.
/// All text is UTF-8.
std::string composeRangeText(std::string_view localizedTemplate, std::string_view maxMark,
                             std::string_view minMark, const ValueRange &range);

} // namespace imageposition

#endif
