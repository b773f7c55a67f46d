/// What is asked of strings in every room.
#ifndef IMAGEPOSITION_HOST_STRINGS_HPP
#define IMAGEPOSITION_HOST_STRINGS_HPP

#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

bool startsWith(std::string_view string, std::string_view start) noexcept;
bool endsWith(std::string_view string, std::string_view end) noexcept;
/// Without the blanks around it.
std::string trimmed(std::string_view string, std::string_view blanks);

// Names and keywords, which CUPS compares without regard to the case of ASCII letters.

bool isSame(std::string_view left, std::string_view right) noexcept;
/// Whether one of the names is the same.
bool contains(const std::vector<std::string> &names, std::string_view name) noexcept;
/// Alphabetical order; of equal rank are those that are the same.
struct IgnoringCase {
  bool operator()(std::string_view left, std::string_view right) const noexcept;
};

} // namespace imageposition

#endif
