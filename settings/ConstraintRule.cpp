#include "settings/ConstraintRule.hpp"

#include "settings/IntegerText.hpp"

#include <cstring>

namespace imageposition {
namespace {

// An absent interval is 0 to 0; one without ":" is none.
std::optional<ValueRange> readRuleInterval(const std::optional<std::string> &text) {
  return text ? readInterval(*text) : ValueRange{};
}

} // namespace

Condition Condition::fromTexts(const RuleTexts &texts) {
  Condition condition;
  if (texts.conditionType == "PPD" && texts.conditionPattern && texts.conditionValue) {
    condition.kind_ = Kind::Attribute;
    condition.subject_ = *texts.conditionPattern;
    condition.expected_ = *texts.conditionValue;
  } else if (texts.conditionType == "Setting" && texts.conditionObj) {
    condition.subject_ = *texts.conditionObj;
    if (texts.conditionPattern == "Value" && texts.conditionValue) {
      condition.kind_ = Kind::SettingText;
      condition.expected_ = *texts.conditionValue;
      const std::int32_t number = readInteger(condition.expected_);
      if (writeInteger(number) == condition.expected_)
        condition.expectedNumber_ = number;
    } else if (texts.conditionPattern == "Range") {
      if (const std::optional<ValueRange> interval = readRuleInterval(texts.conditionValue)) {
        condition.kind_ = Kind::SettingRange;
        condition.interval_ = *interval;
      }
    }
  }
  return condition;
}

bool Condition::holds(ConditionSource &source) const {
  if (kind_ == Kind::Never)
    return false;
  if (kind_ == Kind::Attribute) {
    const char *value = source.attributeValue(subject_);
    return value != nullptr && std::strcmp(expected_.c_str(), value) == 0;
  }
  bool satisfied = false;
  // Every setting is visited, also after the answer is known: asking may have effects of its own.
  for (std::size_t index = 0; index < source.settingCount(); ++index) {
    if (source.isSettingNamed(index, subject_) && isSatisfiedBy(source, index))
      satisfied = true;
  }
  return satisfied;
}

bool Condition::isSatisfiedBy(ConditionSource &source, std::size_t index) const {
  if (const std::optional<std::int32_t> value = source.settingValue(index))
    return kind_ == Kind::SettingText ? expectedNumber_ == value : interval_.contains(*value);
  const std::optional<std::string> text = source.settingText(index);
  if (kind_ == Kind::SettingText)
    return text == expected_;
  return interval_.contains(readInteger(text ? *text : std::string{}));
}

Action Action::fromTexts(const RuleTexts &texts) {
  Action action;
  const std::optional<std::string> &value = texts.actionValue;
  if (texts.actionPattern == "Value" && value) {
    action.kind = Kind::SetValue;
    action.text = *value;
  } else if (texts.actionPattern == "View" && (value == "ON" || value == "OFF")) {
    action.kind = Kind::SetAvailable;
    action.available = value == "ON";
  } else if (texts.actionPattern == "Range") {
    if (const std::optional<ValueRange> interval = readRuleInterval(value)) {
      action.kind = Kind::SetRange;
      action.range = *interval;
    }
  } else if (texts.actionPattern == "Default" && value) {
    action.kind = Kind::SetDefault;
    action.number = readInteger(*value);
  }
  return action;
}

ConstraintRule ConstraintRule::fromTexts(const RuleTexts &texts) {
  return {Condition::fromTexts(texts), Action::fromTexts(texts)};
}

} // namespace imageposition
