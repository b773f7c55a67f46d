/// Files of texts by their keys, read to the letter: a platform's reader takes the last of two
/// texts with one key, and says nothing.
#ifndef IMAGEPOSITION_TESTS_RESOURCES_TEXTENTRIES_HPP
#define IMAGEPOSITION_TESTS_RESOURCES_TEXTENTRIES_HPP

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace imageposition::test {

using TextEntries = std::vector<std::pair<std::string, std::string>>;

/// The entries of a strings file, each `"key" = "text";`, in their order. Comments are between
/// entries, and backslashes before a quote, a backslash or an n. Throws a `std::runtime_error` that
/// gives the line of anything else, and of a key that was there before.
TextEntries stringsEntries(std::string_view utf8);

/// The same for a property list in the older form, a dictionary of texts: in braces, and words may
/// stand without quotes.
TextEntries braceEntries(std::string_view utf8);

} // namespace imageposition::test

#endif
