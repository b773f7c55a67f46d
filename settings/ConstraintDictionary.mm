#import "settings/ConstraintDictionary.h"

#import "platform/TextBridge.h"
#import "settings/Keys.h"

#include <objc/runtime.h>

using imageposition::ConstraintRule;
using imageposition::ConstraintRules;

/// A rule that knows its typed form, which the `ConstraintRules` that made it own.
@interface MorvaADPConstraintRule : NSDictionary {
@public
  NSDictionary *Entries;
  const ConstraintRule *Typed;
}
@end

@implementation MorvaADPConstraintRule

- (void)dealloc {
  [Entries release];
  [super dealloc];
}

- (NSUInteger)count {
  return [Entries count];
}

- (id)objectForKey:(id)key {
  return [Entries objectForKey:key];
}

- (NSEnumerator *)keyEnumerator {
  return [Entries keyEnumerator];
}

@end

@implementation MorvaADPConstraintTable

+ (MorvaADPConstraintTable *)tableWithDictionary:(NSDictionary *)entries {
  if (entries == nil)
    return nil;
  MorvaADPConstraintTable *table = [[[self alloc] init] autorelease];
  table->Entries = [entries copy];
  table->Rules = new std::shared_ptr<const ConstraintRules>(
      std::make_shared<const ConstraintRules>(table->Entries));
  return table;
}

- (void)dealloc {
  delete static_cast<std::shared_ptr<const ConstraintRules> *>(Rules);
  [Entries release];
  [super dealloc];
}

- (std::shared_ptr<const ConstraintRules>)constraintRules {
  return *static_cast<std::shared_ptr<const ConstraintRules> *>(Rules);
}

- (NSUInteger)count {
  return [Entries count];
}

- (id)objectForKey:(id)key {
  return [Entries objectForKey:key];
}

- (NSEnumerator *)keyEnumerator {
  return [Entries keyEnumerator];
}

@end

namespace imageposition {
namespace {

NSDictionary *wrap(NSDictionary *rule) {
  MorvaADPConstraintRule *wrapper = [[MorvaADPConstraintRule alloc] init];
  wrapper->Entries = [rule retain];
  return wrapper;
}

} // namespace

RuleTexts ruleTexts(NSDictionary *rule) {
  RuleTexts texts;
  texts.conditionObj = toOptionalText([rule objectForKey:kRuleConditionObj]);
  texts.conditionType = toOptionalText([rule objectForKey:kRuleConditionType]);
  texts.conditionPattern = toOptionalText([rule objectForKey:kRuleConditionPattern]);
  texts.conditionValue = toOptionalText([rule objectForKey:kRuleConditionValue]);
  texts.actionObj = toOptionalText([rule objectForKey:kRuleActionObj]);
  texts.actionPattern = toOptionalText([rule objectForKey:kRuleActionPattern]);
  texts.actionValue = toOptionalText([rule objectForKey:kRuleActionValue]);
  return texts;
}

ConstraintRules::ConstraintRules(NSDictionary *table) {
  const NSUInteger count = [table count];
  for (NSUInteger index = 0; index < count; ++index) {
    NSDictionary *rule =
        [table objectForKey:toString(std::to_string(static_cast<unsigned long>(index)))];
    if (![rule isKindOfClass:[NSDictionary class]])
      continue;
    table_.append(ruleTexts(rule));
    dictionaries_.push_back(wrap(rule));
  }
  // Only now: the rules no longer move.
  for (ConstraintTable::Position position = 0; position < table_.size(); ++position)
    static_cast<MorvaADPConstraintRule *>(dictionaries_[position])->Typed = &table_[position];
}

ConstraintRules::~ConstraintRules() {
  for (NSDictionary *rule : dictionaries_) {
    // Whoever kept the dictionary keeps its texts; the typed form ends here.
    static_cast<MorvaADPConstraintRule *>(rule)->Typed = nullptr;
    [rule release];
  }
}

NSDictionary *ConstraintRules::dictionary(ConstraintTable::Position position) const {
  return dictionaries_[position];
}

std::shared_ptr<const ConstraintRules> constraintRules(NSDictionary *table) {
  if ([table isKindOfClass:[MorvaADPConstraintTable class]])
    return [static_cast<MorvaADPConstraintTable *>(table) constraintRules];
  return std::make_shared<const ConstraintRules>(table);
}

const ConstraintRule *typedRule(NSDictionary *rule) {
  // No message is sent: this is on the path of every rule of every refresh.
  static const Class kTyped = [MorvaADPConstraintRule class];
  if (rule == nil || object_getClass(rule) != kTyped)
    return nullptr;
  return static_cast<MorvaADPConstraintRule *>(rule)->Typed;
}

} // namespace imageposition
