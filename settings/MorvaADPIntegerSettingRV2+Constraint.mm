#import "MorvaADPIntegerSettingRV2.h"

#import "SettingRules.h"
#import "TextBridge.h"

#include <objc/runtime.h>

using imageposition::Action;
using imageposition::Condition;
using imageposition::SettingRule;
using imageposition::toOptionalText;
using imageposition::toString;
using imageposition::typedRule;

namespace {

bool isSatisfiedBy(const Condition &condition, id setting) {
  static const Class kPlain = [MorvaADPIntegerSettingRV2 class];
  if (!condition.readsValue())
    return false;
  // Formatting the value and parsing it again would cost more than the rest of a rule. A subclass
  // may return another string.
  if (object_getClass(setting) == kPlain)
    return condition.isSatisfiedBy([setting getValue]);
  return condition.isSatisfiedBy(toOptionalText([setting getValueString]));
}

bool holds(const SettingRule &rule, ppd_file_t *ppd, NSArray *settings) {
  const Condition &condition = rule.condition;
  if (condition.subject() == Condition::Subject::Attribute) {
    const ppd_attr_t *attribute = ppdFindAttr(ppd, condition.keyword().c_str(), nullptr);
    return attribute != nullptr && condition.isSatisfiedByAttribute(attribute->value);
  }
  if (condition.subject() == Condition::Subject::Nothing)
    return false;
  bool isSatisfied = false;
  // No early exit: the getters of a setting may have side effects.
  for (NSUInteger index = 0; index < [settings count]; ++index) {
    id setting = [settings objectAtIndex:index];
    if ([[setting getSettingName] isEqualToString:rule.conditionObj] &&
        isSatisfiedBy(condition, setting))
      isSatisfied = true;
  }
  return isSatisfied;
}

} // namespace

@implementation MorvaADPIntegerSettingRV2 (Constraint)

- (void)applyUIConstraint:(PMPrintSettings)printSettings {
  (void)printSettings;
  for (const SettingRule *rule : Rules->actingOn([self getSettingName])) {
    if (![self checkUIConstraintCondition:rule->dictionary])
      continue;
    switch (rule->action.kind) {
    case Action::Kind::Nothing:
      break;
    case Action::Kind::SetValue:
      [self setStringValue:toString(rule->action.value)];
      break;
    case Action::Kind::SetAvailable:
      [self setViewState:rule->action.available];
      break;
    case Action::Kind::SetRange:
      // The next check or refresh clamps the value and updates the range label.
      Min = rule->action.range.min;
      Max = rule->action.range.max;
      break;
    case Action::Kind::SetDefault:
      [self setDefault:rule->action.number];
      break;
    }
  }
}

- (BOOL)checkUIConstraintCondition:(NSDictionary *)rule {
  const SettingRule *known = Rules->find(rule);
  return known != nullptr ? holds(*known, PPD, RelatedSettings)
                          : holds(typedRule(rule), PPD, RelatedSettings);
}

@end
