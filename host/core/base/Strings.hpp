/// Functions for strings and names.
#ifndef IMAGEPOSITION_CORE_BASE_STRINGS_HPP
#define IMAGEPOSITION_CORE_BASE_STRINGS_HPP

#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

bool startsWith(std::string_view string, std::string_view start) noexcept;
bool endsWith(std::string_view string, std::string_view end) noexcept;
/// Removes the characters in `blanks` from both ends.
std::string trimmed(std::string_view string, std::string_view blanks);

/// The string as one word of a shell command: in quotes if a shell would act on a character in it.
std::string shellWord(const std::string &string);

// For names and keywords: ignore the case of ASCII letters, as CUPS does.

bool isSame(std::string_view left, std::string_view right) noexcept;
/// Whether one of the names is the same as `name`.
bool contains(const std::vector<std::string> &names, std::string_view name) noexcept;
/// Whether the value of a setting switches it on, as CUPS's filters read it: "true", "yes", "on".
bool isTrue(std::string_view value) noexcept;
/// Alphabetical order, for sorted containers.
struct IgnoringCase {
  bool operator()(std::string_view left, std::string_view right) const noexcept;
};

} // namespace imageposition

#endif
