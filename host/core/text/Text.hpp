/// Texts for people, in the language of whoever runs the program.
///
/// A text is written in English where it belongs, by `text`, `textIn` or `counted`; the catalogues
/// in host/po have it in other languages, and `tools/update-catalogues` finds it by these words.
/// What differs from time to time is "{1}" to "{9}" in it, so that each language can order it as it
/// needs to. A translation is only ever looked at for these marks, and is no `printf` format.
#ifndef IMAGEPOSITION_HOST_TEXT_HPP
#define IMAGEPOSITION_HOST_TEXT_HPP

#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// `pattern` with each "{1}" as the first value, "{2}" as the second, and so on. A mark without a
/// value stays as it is; marks in a value are not looked at. A value is
/// written as `visible` does: names that others chose stay within their place and line.
std::string fill(std::string_view pattern, const std::vector<std::string> &values);

/// One text. It is looked up when it is used, and so can be a constant of a file.
class Text {
public:
  constexpr Text(const char *context, const char *english) : context_(context), english_(english) {}

  /// In the chosen language, to the end of the program.
  std::string_view view() const;
  std::string str() const { return std::string(view()); }
  // NOLINTBEGIN(google-explicit-constructor): a constant stands where its text is wanted.
  operator std::string_view() const { return view(); }
  operator std::string() const { return str(); }
  // NOLINTEND(google-explicit-constructor)

  /// With its marks filled in; numbers are written by `std::to_string`.
  template <typename... Values> std::string with(const Values &...values) const {
    return fill(view(), {written(values)...});
  }

private:
  static std::string written(std::string_view value) { return std::string(value); }
  static std::string written(int value) { return std::to_string(value); }

  const char *context_;
  const char *english_;
};

constexpr Text text(const char *english) { return {nullptr, english}; }

/// For an English text that other languages have several words for: `context` tells them apart.
constexpr Text textIn(const char *context, const char *english) { return {context, english}; }

/// The text that goes with a number, which is its "{1}"; `more` are the following marks. English
/// has two such texts, other languages have one or more.
std::string counted(long number, const char *one, const char *several,
                    const std::vector<std::string> &more = {});

/// The system's own words for an `errno` value.
std::string systemReason(int error);

} // namespace imageposition

#endif
