/// One constraint rule in typed form.
///
/// A rule table is a dictionary of dictionaries of texts; reading those on every keystroke would
/// cost more than everything else that a refresh does, so that each rule is read once into this
/// form.
#ifndef IMAGEPOSITION_SETTINGS_CONSTRAINTRULE_HPP
#define IMAGEPOSITION_SETTINGS_CONSTRAINTRULE_HPP

#include "settings/ValueRange.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace imageposition {

/// The texts of a rule as its dictionary gives them, in UTF-8. What is not a text there is absent.
struct RuleTexts {
  std::optional<std::string> conditionObj;
  std::optional<std::string> conditionType;
  std::optional<std::string> conditionPattern;
  std::optional<std::string> conditionValue;
  std::optional<std::string> actionObj;
  std::optional<std::string> actionPattern;
  std::optional<std::string> actionValue;
};

/// What a condition asks about: the printer, and the settings of the panel in their order.
class ConditionSource {
public:
  virtual ~ConditionSource() = default;
  /// The value of the printer description's first attribute with that keyword, valid until the next
  /// call; null when there is no such attribute or it has no value.
  virtual const char *attributeValue(const std::string &keyword) = 0;
  /// Asked again before every setting that is looked at.
  virtual std::size_t settingCount() = 0;
  virtual bool isSettingNamed(std::size_t index, const std::string &name) = 0;
  /// The setting's value, when it is known to show it as "%d" does; otherwise its text counts.
  virtual std::optional<std::int32_t> settingValue(std::size_t index) = 0;
  /// None when the setting has no text.
  virtual std::optional<std::string> settingText(std::size_t index) = 0;
};

/// When a rule applies.
class Condition {
public:
  /// Unknown or missing types and patterns, a "PPD" condition without keyword or value, and an
  /// interval without ":" make a condition that never holds.
  static Condition fromTexts(const RuleTexts &texts);

  /// Whether it holds now. A setting condition holds when any setting of that name satisfies it.
  bool holds(ConditionSource &source) const;

private:
  enum class Kind : std::uint8_t { Never, Attribute, SettingText, SettingRange };

  bool isSatisfiedBy(ConditionSource &source, std::size_t index) const;

  Kind kind_ = Kind::Never;
  std::string subject_;                        // the attribute's keyword, or the setting's name
  std::string expected_;                       // the attribute's value, or the setting's text
  std::optional<std::int32_t> expectedNumber_; // of a text that "%d" could have made
  ValueRange interval_;
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

struct ConstraintRule {
  static ConstraintRule fromTexts(const RuleTexts &texts);

  Condition condition;
  Action action;
};

} // namespace imageposition

#endif
