#import "SettingRules.h"

#import "Keys.h"
#import "PropertyValues.h"
#import "TextBridge.h"

namespace imageposition {

SettingRule typedRule(NSDictionary *rule) {
  RuleStrings strings;
  strings.conditionType = toOptionalText([rule objectForKey:kRuleConditionType]);
  strings.conditionPattern = toOptionalText([rule objectForKey:kRuleConditionPattern]);
  strings.conditionValue = toOptionalText([rule objectForKey:kRuleConditionValue]);
  strings.actionPattern = toOptionalText([rule objectForKey:kRuleActionPattern]);
  strings.actionValue = toOptionalText([rule objectForKey:kRuleActionValue]);
  return {rule, stringEntry(rule, kRuleConditionObj), Condition::fromStrings(strings),
          Action::fromStrings(strings)};
}

SettingRules::SettingRules(NSDictionary *table) : table_([table copy]) {
  for (NSUInteger index = 0; index < [table_ count]; ++index) {
    NSDictionary *dictionary = [table_ objectForKey:integerString(static_cast<int32_t>(index))];
    const auto actionObj = toOptionalText(stringEntry(dictionary, kRuleActionObj));
    if (!actionObj)
      continue;
    const SettingRule &rule = rules_.try_emplace(dictionary, typedRule(dictionary)).first->second;
    byActionObj_[*actionObj].push_back(&rule);
  }
}

SettingRules::~SettingRules() { [table_ release]; }

std::vector<const SettingRule *> SettingRules::actingOn(NSString *settingName) const {
  const auto found = byActionObj_.find(toText(settingName));
  return settingName != nil && found != byActionObj_.end() ? found->second
                                                           : std::vector<const SettingRule *>{};
}

const SettingRule *SettingRules::find(NSDictionary *dictionary) const {
  const auto found = rules_.find(dictionary);
  return found != rules_.end() ? &found->second : nullptr;
}

} // namespace imageposition
