/// Parses the number of copies.
#ifndef IMAGEPOSITION_CORE_JOB_COPIES_HPP
#define IMAGEPOSITION_CORE_JOB_COPIES_HPP

#include <optional>
#include <string>

namespace imageposition {

constexpr int kMostCopies = 9999; ///< The largest number that CUPS accepts.

/// Returns nullopt unless the whole string is a number from 1 to `kMostCopies`.
std::optional<int> readCopies(const std::string &text);

/// Clamps the number to the range from 1 to `kMostCopies`. Returns 1 if the string is not a number.
int nearestCopies(const std::string &text);

} // namespace imageposition

#endif
