/// User-visible strings, translated to the user's language.
///
/// The sources contain the English strings, in calls of `text`, `textIn` or `counted`, which
/// `tools/update-catalogues` extracts. The catalogues in host/core/text/po contain the
/// translations. The placeholders "{1}" to "{9}" let each language choose the word order. A
/// translation is never used as a `printf` format.
#ifndef IMAGEPOSITION_CORE_TEXT_TEXT_HPP
#define IMAGEPOSITION_CORE_TEXT_TEXT_HPP

#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// Replaces "{1}" in `pattern` with the first value, "{2}" with the second, and so on. Leaves
/// placeholders without a value as they are, and does not expand placeholders in values. Escapes
/// values with `visible`, so that a name cannot start a new line or control the terminal.
std::string fill(std::string_view pattern, const std::vector<std::string> &values);

/// A translatable string. It is translated when it is used, so it can be a global constant.
class Text {
public:
  constexpr Text(const char *context, const char *english) : context_(context), english_(english) {}

  /// As written in the source.
  std::string_view english() const { return english_; }
  /// The translation, valid until the program ends.
  std::string_view view() const;
  std::string str() const { return std::string(view()); }
  // NOLINTBEGIN(google-explicit-constructor): constants convert to strings.
  operator std::string_view() const { return view(); }
  operator std::string() const { return str(); }
  // NOLINTEND(google-explicit-constructor)

  /// The translation with its placeholders filled in. Numbers are formatted by `std::to_string`.
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

/// For an English string that has several translations; `context` tells them apart.
constexpr Text textIn(const char *context, const char *english) { return {context, english}; }

/// The plural form for `number`, which replaces "{1}"; `more` replaces the following placeholders.
/// `one` and `several` are the English forms. Other languages have one or more.
std::string counted(long number, const char *one, const char *several,
                    const std::vector<std::string> &more = {});

/// The system's message for an `errno` value, translated.
std::string systemReason(int error);

} // namespace imageposition

#endif
