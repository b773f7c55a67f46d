#include "ConstraintRule.hpp"

#include "IntegerText.hpp"

#include <cstring>

namespace imageposition {
namespace {

// An absent interval means 0 to 0; one without ":" is malformed.
std::optional<ValueRange> readRuleInterval(const std::optional<std::string> &string) {
  return string ? readInterval(*string) : ValueRange{};
}

} // namespace

Condition Condition::fromStrings(const RuleStrings &rule) {
  Condition condition;
  condition.expected_ = rule.conditionValue;
  if (rule.conditionType == "PPD" && rule.conditionPattern && rule.conditionValue) {
    condition.subject_ = Subject::Attribute;
    condition.keyword_ = *rule.conditionPattern;
  } else if (rule.conditionType == "Setting") {
    condition.subject_ = Subject::Setting;
    if (rule.conditionPattern == "Value") {
      condition.pattern_ = Pattern::Value;
      const std::int32_t number = readInteger(rule.conditionValue.value_or(""));
      if (writeInteger(number) == rule.conditionValue)
        condition.expectedNumber_ = number;
    } else if (rule.conditionPattern == "Range") {
      condition.pattern_ = Pattern::Range;
      condition.interval_ = readRuleInterval(rule.conditionValue);
    }
  }
  return condition;
}

bool Condition::isSatisfiedByAttribute(const char *value) const {
  return value != nullptr && expected_ && std::strcmp(expected_->c_str(), value) == 0;
}

bool Condition::isSatisfiedBy(const std::optional<std::string> &value) const {
  if (pattern_ == Pattern::Value)
    return value && value == expected_;
  return interval_ && interval_->contains(readInteger(value.value_or("")));
}

bool Condition::isSatisfiedBy(std::int32_t value) const {
  if (pattern_ == Pattern::Value)
    return expectedNumber_ == value;
  return interval_ && interval_->contains(value);
}

Action Action::fromStrings(const RuleStrings &rule) {
  Action action;
  const std::optional<std::string> &value = rule.actionValue;
  if (rule.actionPattern == "Value" && value) {
    action.kind = Kind::SetValue;
    action.value = *value;
  } else if (rule.actionPattern == "View" && (value == "ON" || value == "OFF")) {
    action.kind = Kind::SetAvailable;
    action.available = value == "ON";
  } else if (rule.actionPattern == "Range") {
    if (const std::optional<ValueRange> interval = readRuleInterval(value)) {
      action.kind = Kind::SetRange;
      action.range = *interval;
    }
  } else if (rule.actionPattern == "Default" && value) {
    action.kind = Kind::SetDefault;
    action.number = readInteger(*value);
  }
  return action;
}

} // namespace imageposition
