// Typed rules about invented attributes and settings: conditions and actions match a second, plain
// reading of the same strings.
#include "ConstraintRule.hpp"

#include "Check.hpp"
#include "IntegerText.hpp"

#include <fuzzer/FuzzedDataProvider.h>

using imageposition::Action;
using imageposition::Condition;
using imageposition::RuleStrings;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

using Part = std::optional<std::string>;

Part drawPart(FuzzedDataProvider &input, std::initializer_list<const char *> usual) {
  const auto which = input.ConsumeIntegralInRange<std::size_t>(0, usual.size() + 1);
  if (which == usual.size())
    return std::nullopt;
  return which > usual.size() ? input.ConsumeRandomLengthString(12) : *(usual.begin() + which);
}

RuleStrings drawRule(FuzzedDataProvider &input) {
  RuleStrings rule;
  rule.conditionType = drawPart(input, {"PPD", "Setting"});
  rule.conditionPattern = drawPart(input, {"Attribute", "Value", "Range"});
  rule.conditionValue = drawPart(input, {"true", "5", "-3", "05", "-10:10", "5:-5", "0"});
  rule.actionPattern = drawPart(input, {"Value", "View", "Range", "Default"});
  rule.actionValue = drawPart(input, {"ON", "OFF", "5", "-10:10", "9:-9"});
  return rule;
}

std::vector<std::int32_t> bounds(const Part &string) {
  if (!string)
    return {0, 0};
  const std::size_t colon = string->find(':');
  if (colon == std::string::npos)
    return {};
  return {imageposition::readInteger(string->substr(0, colon)),
          imageposition::readInteger(string->substr(colon + 1))};
}

bool shouldHold(const RuleStrings &rule, const std::string &attribute) {
  return rule.conditionType == "PPD" && rule.conditionPattern && rule.conditionValue &&
         std::string(rule.conditionValue->c_str()) == attribute;
}

bool shouldHold(const RuleStrings &rule, std::int32_t value) {
  if (rule.conditionType != "Setting")
    return false;
  if (rule.conditionPattern == "Value")
    return rule.conditionValue == std::to_string(value);
  const auto allowed = bounds(rule.conditionValue);
  return rule.conditionPattern == "Range" && !allowed.empty() && allowed[0] <= value &&
         allowed[1] >= value;
}

std::string shouldDo(const RuleStrings &rule) {
  const auto range = bounds(rule.actionValue);
  if (rule.actionPattern == "Range" && !range.empty())
    return "range " + std::to_string(range[0]) + " " + std::to_string(range[1]);
  if (rule.actionPattern == "Value" && rule.actionValue)
    return "value " + *rule.actionValue;
  if (rule.actionPattern == "Default" && rule.actionValue)
    return "default " + std::to_string(imageposition::readInteger(*rule.actionValue));
  if (rule.actionPattern == "View" && (rule.actionValue == "ON" || rule.actionValue == "OFF"))
    return "view " + *rule.actionValue;
  return "nothing";
}

std::string does(const Action &action) {
  switch (action.kind) {
  case Action::Kind::SetRange:
    return "range " + std::to_string(action.range.min) + " " + std::to_string(action.range.max);
  case Action::Kind::SetValue:
    return "value " + action.value;
  case Action::Kind::SetDefault:
    return "default " + std::to_string(action.number);
  case Action::Kind::SetAvailable:
    return action.available ? "view ON" : "view OFF";
  case Action::Kind::Nothing:
    break;
  }
  return "nothing";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  // Without NUL, like a PPD's.
  const std::string attribute = input.ConsumeRandomLengthString(6).c_str();
  const auto value = input.ConsumeIntegralInRange<std::int32_t>(-12, 12);
  while (input.remaining_bytes() > 0) {
    const RuleStrings rule = drawRule(input);
    const Condition condition = Condition::fromStrings(rule);
    const bool isOnAttribute = condition.subject() == Condition::Subject::Attribute;
    const bool readsValue =
        condition.subject() == Condition::Subject::Setting && condition.readsValue();
    check((isOnAttribute && condition.isSatisfiedByAttribute(attribute.c_str())) ==
              shouldHold(rule, attribute),
          "a condition on an attribute holds when its strings say so");
    check((readsValue && condition.isSatisfiedBy(value)) == shouldHold(rule, value),
          "a condition on a setting holds when its strings say so");
    check(condition.isSatisfiedBy(value) == condition.isSatisfiedBy(std::to_string(value)),
          "a number and its string satisfy the same conditions");
    checkSame(does(Action::fromStrings(rule)), shouldDo(rule),
              "an action is parsed from its strings");
  }
  return 0;
}
