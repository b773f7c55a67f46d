// The rule table in typed form, on printers and settings that are made up: its conditions and
// actions are those of the texts, read once more one after the other.
#include "settings/ConstraintTable.hpp"

#include "fuzz/Check.hpp"
#include "settings/IntegerText.hpp"

#include <fuzzer/FuzzedDataProvider.h>
#include <map>

using imageposition::Action;
using imageposition::ConstraintTable;
using imageposition::RuleTexts;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

using Part = std::optional<std::string>;

const std::string kNames[] = {"FrontLRM", "BackTBM", "", "FrontLRM"};

/// Settings and attributes, and whether their numbers are known without asking for their text.
class MadeUpSource : public imageposition::ConditionSource {
public:
  explicit MadeUpSource(FuzzedDataProvider &input) : knowsNumbers_(input.ConsumeBool()) {
    for (std::int32_t &value : values)
      value = input.ConsumeIntegralInRange<std::int32_t>(-12, 12);
    attribute = input.ConsumeRandomLengthString(6).c_str(); // without NUL, as the printer's
  }

  const char *attributeValue(const std::string &keyword) override {
    return keyword == "Attribute" ? attribute.c_str() : nullptr;
  }
  std::size_t settingCount() override { return std::size(kNames); }
  bool isSettingNamed(std::size_t index, const std::string &name) override {
    return kNames[index] == name;
  }
  std::optional<std::int32_t> settingValue(std::size_t index) override {
    return knowsNumbers_ ? std::optional<std::int32_t>(values[index]) : std::nullopt;
  }
  std::optional<std::string> settingText(std::size_t index) override {
    return std::to_string(values[index]);
  }

  std::string attribute;
  std::int32_t values[std::size(kNames)];

private:
  bool knowsNumbers_;
};

Part drawPart(FuzzedDataProvider &input, std::initializer_list<const char *> usual) {
  const auto which = input.ConsumeIntegralInRange<std::size_t>(0, usual.size() + 1);
  if (which == usual.size())
    return std::nullopt;
  return which > usual.size() ? input.ConsumeRandomLengthString(12) : *(usual.begin() + which);
}

RuleTexts drawRule(FuzzedDataProvider &input) {
  RuleTexts rule;
  rule.conditionObj = drawPart(input, {"FrontLRM", "BackTBM", ""});
  rule.conditionType = drawPart(input, {"PPD", "Setting"});
  rule.conditionPattern = drawPart(input, {"Attribute", "Value", "Range"});
  rule.conditionValue = drawPart(input, {"true", "5", "-3", "05", "-10:10", "5:-5", "0"});
  rule.actionObj = drawPart(input, {"FrontLRM", "BackTBM", ""});
  rule.actionPattern = drawPart(input, {"Value", "View", "Range", "Default"});
  rule.actionValue = drawPart(input, {"ON", "OFF", "5", "-10:10", "9:-9"});
  return rule;
}

std::vector<std::int32_t> bounds(const Part &text) {
  if (!text)
    return {0, 0};
  const std::size_t colon = text->find(':');
  if (colon == std::string::npos)
    return {};
  return {imageposition::readInteger(text->substr(0, colon)),
          imageposition::readInteger(text->substr(colon + 1))};
}

bool shouldHold(const RuleTexts &rule, const MadeUpSource &source) {
  if (rule.conditionType == "PPD")
    return rule.conditionPattern == "Attribute" && rule.conditionValue &&
           std::string(rule.conditionValue->c_str()) == source.attribute;
  if (rule.conditionType != "Setting" || !rule.conditionObj)
    return false;
  const auto allowed = bounds(rule.conditionValue);
  for (std::size_t i = 0; i < std::size(kNames); ++i) {
    if (kNames[i] != rule.conditionObj)
      continue;
    if (rule.conditionPattern == "Value" && rule.conditionValue == std::to_string(source.values[i]))
      return true;
    if (rule.conditionPattern == "Range" && !allowed.empty() && allowed[0] <= source.values[i] &&
        allowed[1] >= source.values[i])
      return true;
  }
  return false;
}

std::string shouldDo(const RuleTexts &rule) {
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
    return "value " + action.text;
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
  MadeUpSource source(input);
  std::vector<RuleTexts> rules;
  while (input.remaining_bytes() > 0 && rules.size() < 64)
    rules.push_back(drawRule(input));

  ConstraintTable table;
  std::map<std::string, std::vector<ConstraintTable::Position>> byName;
  for (const RuleTexts &rule : rules) {
    const auto position = table.append(rule);
    if (rule.actionObj)
      byName[*rule.actionObj].push_back(position);
    check(table[position].condition.holds(source) == shouldHold(rule, source),
          "a condition holds when its texts say so");
    checkSame(does(table[position].action), shouldDo(rule), "an action is that of its texts");
  }
  check(table.size() == rules.size(), "every rule is kept");
  for (const auto &[name, positions] : byName)
    check(table.rulesActingOn(name) == positions, "the rules of a setting, in their order");
  check(table.rulesActingOn("no such setting").empty(), "no rules for whom none acts on");
  return 0;
}
