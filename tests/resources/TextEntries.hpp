/// Strict readers of files with strings under keys. Foundation's reader silently takes the last of
/// two strings with the same key.
#ifndef IMAGEPOSITION_TESTS_RESOURCES_TEXTENTRIES_HPP
#define IMAGEPOSITION_TESTS_RESOURCES_TEXTENTRIES_HPP

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace imageposition::test {

using TextEntries = std::vector<std::pair<std::string, std::string>>;

/// Reads the entries of a strings file, each `"key" = "text";`, in order. Allows comments between
/// entries, and backslashes before a quote, a backslash or an n. Throws std::runtime_error with the
/// line of anything else, and of a duplicate key.
TextEntries stringsEntries(std::string_view utf8);

/// The same for a dictionary of strings in an old-style property list: in braces, and words need no
/// quotes.
TextEntries braceEntries(std::string_view utf8);

} // namespace imageposition::test

#endif
