/// How many copies, as a text.
#ifndef IMAGEPOSITION_HOST_COPIES_HPP
#define IMAGEPOSITION_HOST_COPIES_HPP

#include <optional>
#include <string>

namespace imageposition {

constexpr int kMostCopies = 9999; ///< That CUPS takes.

/// None unless the whole text is a number from 1 to `kMostCopies`.
std::optional<int> readCopies(const std::string &text);

/// What a text that may not be such a number comes closest to; 1 for one that is no number.
int nearestCopies(const std::string &text);

} // namespace imageposition

#endif
