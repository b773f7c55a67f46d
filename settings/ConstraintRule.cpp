#include "ConstraintRule.hpp"

#include "IntegerText.hpp"

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
  condition.expected_ = texts.conditionValue;
  if (texts.conditionType == "PPD" && texts.conditionPattern && texts.conditionValue) {
    condition.subject_ = Subject::Attribute;
    condition.keyword_ = *texts.conditionPattern;
  } else if (texts.conditionType == "Setting") {
    condition.subject_ = Subject::Setting;
    if (texts.conditionPattern == "Value") {
      condition.pattern_ = Pattern::Value;
      const std::int32_t number = readInteger(texts.conditionValue.value_or(""));
      if (writeInteger(number) == texts.conditionValue)
        condition.expectedNumber_ = number;
    } else if (texts.conditionPattern == "Range") {
      condition.pattern_ = Pattern::Range;
      condition.interval_ = readRuleInterval(texts.conditionValue);
    }
  }
  return condition;
}

bool Condition::isSatisfiedByAttribute(const char *value) const {
  return value != nullptr && expected_ && std::strcmp(expected_->c_str(), value) == 0;
}

bool Condition::isSatisfiedBy(const std::optional<std::string> &text) const {
  if (pattern_ == Pattern::Value)
    return text && text == expected_;
  return interval_ && interval_->contains(readInteger(text.value_or("")));
}

bool Condition::isSatisfiedBy(std::int32_t value) const {
  if (pattern_ == Pattern::Value)
    return expectedNumber_ == value;
  return interval_ && interval_->contains(value);
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

} // namespace imageposition
