/// One constraint rule in typed form.
///
/// A rule is a dictionary of strings. Parsing them on every keystroke would cost more than the rest
/// of a refresh, so each rule is parsed once into this form.
#ifndef IMAGEPOSITION_SETTINGS_CONSTRAINTRULE_HPP
#define IMAGEPOSITION_SETTINGS_CONSTRAINTRULE_HPP

#include "ValueRange.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace imageposition {

/// The strings of a rule's dictionary, in UTF-8, without the names of settings. An entry that is
/// not a string is absent.
struct RuleStrings {
  std::optional<std::string> conditionType;
  std::optional<std::string> conditionPattern;
  std::optional<std::string> conditionValue;
  std::optional<std::string> actionPattern;
  std::optional<std::string> actionValue;
};

/// When a rule applies: which value to look up, and which values satisfy the condition.
class Condition {
public:
  enum class Subject : std::uint8_t { Nothing, Attribute, Setting };

  /// The subject is `Nothing`, and the condition never holds, when the type is unknown or a "PPD"
  /// condition lacks its keyword or its value. The subject of a "Setting" condition is `Setting`
  /// even when the condition can never hold.
  static Condition fromStrings(const RuleStrings &rule);

  Subject subject() const noexcept { return subject_; }

  /// The keyword of the PPD attribute; empty for other subjects.
  const std::string &keyword() const noexcept { return keyword_; }
  /// Whether this attribute value satisfies the condition. Pass null for an attribute without one.
  bool isSatisfiedByAttribute(const char *value) const;

  /// Whether the condition depends on a setting's value; false when the pattern is unknown.
  bool readsValue() const noexcept { return pattern_ != Pattern::Unknown; }
  /// Whether a setting with this value string satisfies the condition.
  bool isSatisfiedBy(const std::optional<std::string> &value) const;
  /// The same for a setting whose value string is the value formatted with "%d".
  bool isSatisfiedBy(std::int32_t value) const;

private:
  enum class Pattern : std::uint8_t { Unknown, Value, Range };

  Subject subject_ = Subject::Nothing;
  Pattern pattern_ = Pattern::Unknown; // of a setting's value
  std::string keyword_;
  std::optional<std::string> expected_;        // the attribute's or the setting's value string
  std::optional<std::int32_t> expectedNumber_; // set if "%d" formats it as `expected_`
  std::optional<ValueRange> interval_;         // unset if the string has no ":"
};

/// What a rule does. The kind says which member holds the value; `Nothing` also stands for a known
/// kind whose value is missing or unusable.
struct Action {
  enum class Kind : std::uint8_t { Nothing, SetValue, SetAvailable, SetRange, SetDefault };

  static Action fromStrings(const RuleStrings &rule);

  Kind kind = Kind::Nothing;
  std::string value;       ///< SetValue: the new value as the rule gives it.
  bool available = false;  ///< SetAvailable.
  ValueRange range;        ///< SetRange; stored as given, inverted bounds included.
  std::int32_t number = 0; ///< SetDefault.
};

} // namespace imageposition

#endif
