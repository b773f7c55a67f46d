/// One constraint rule in typed form.
///
/// A rule is a dictionary of strings. Reading those on every keystroke would cost more than
/// everything else that a refresh does, so each rule is read once into this form.
#ifndef IMAGEPOSITION_SETTINGS_CONSTRAINTRULE_HPP
#define IMAGEPOSITION_SETTINGS_CONSTRAINTRULE_HPP

#include "ValueRange.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace imageposition {

/// The strings of a rule but the names of settings, as its dictionary gives them, in UTF-8. An
/// entry that is not a string is absent.
struct RuleTexts {
  std::optional<std::string> conditionType;
  std::optional<std::string> conditionPattern;
  std::optional<std::string> conditionValue;
  std::optional<std::string> actionPattern;
  std::optional<std::string> actionValue;
};

/// When a rule applies: what to ask, and which answers satisfy it.
class Condition {
public:
  enum class Subject : std::uint8_t { Nothing, Attribute, Setting };

  /// On `Nothing`, which never holds, when the type is unknown or a "PPD" condition lacks its
  /// keyword or its value. A "Setting" condition that cannot hold is on settings all the same.
  static Condition fromTexts(const RuleTexts &texts);

  Subject subject() const noexcept { return subject_; }

  /// The keyword of the printer description's attribute; empty for other subjects.
  const std::string &keyword() const noexcept { return keyword_; }
  /// Whether the attribute's value satisfies it; null when the attribute has none.
  bool isSatisfiedByAttribute(const char *value) const;

  /// Whether it depends on a setting's value; false when the pattern is unknown.
  bool readsValue() const noexcept { return pattern_ != Pattern::Unknown; }
  /// Whether a setting with that text satisfies it.
  bool isSatisfiedBy(const std::optional<std::string> &text) const;
  /// The same for a setting whose text is what "%d" makes of the value.
  bool isSatisfiedBy(std::int32_t value) const;

private:
  enum class Pattern : std::uint8_t { Unknown, Value, Range };

  Subject subject_ = Subject::Nothing;
  Pattern pattern_ = Pattern::Unknown; // of a setting's value
  std::string keyword_;
  std::optional<std::string> expected_;        // the attribute's value, or a setting's text
  std::optional<std::int32_t> expectedNumber_; // of a text that "%d" could have made
  std::optional<ValueRange> interval_;         // none for one without ":"
};

/// What a rule does. The value's meaning goes by the kind; `Nothing` also stands for a known kind
/// whose value is missing or unusable.
struct Action {
  enum class Kind : std::uint8_t { Nothing, SetValue, SetAvailable, SetRange, SetDefault };

  static Action fromTexts(const RuleTexts &texts);

  Kind kind = Kind::Nothing;
  std::string text;        ///< SetValue: the new value as the rule gives it.
  bool available = false;  ///< SetAvailable.
  ValueRange range;        ///< SetRange; stored as given, inverted bounds included.
  std::int32_t number = 0; ///< SetDefault.
};

} // namespace imageposition

#endif
