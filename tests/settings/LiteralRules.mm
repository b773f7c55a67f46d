#import "LiteralRules.h"

#import "Text.h"

#include <algorithm>
#include <cstring>

namespace imageposition::test {
namespace {

NSString *text(id rule, NSString *key) {
  id entry = [rule isKindOfClass:[NSDictionary class]] ? [rule objectForKey:key] : nil;
  return [entry isKindOfClass:[NSString class]] ? entry : nil;
}

bool liesIn(std::int32_t number, NSString *interval) {
  if (interval == nil)
    return number == 0;
  NSArray *parts = [interval componentsSeparatedByString:@":"];
  return [parts count] >= 2 && literalInteger([parts objectAtIndex:1]) >= number &&
         literalInteger([parts objectAtIndex:0]) <= number;
}

} // namespace

std::int32_t literalInteger(NSString *text) {
  const std::string bytes = text == nil ? "" : cxxString(text);
  std::size_t i = 0;
  while (i < bytes.size() && (bytes[i] == ' ' || (bytes[i] >= '\t' && bytes[i] <= '\r')))
    ++i;
  const bool negative = i < bytes.size() && bytes[i] == '-';
  if (i < bytes.size() && (bytes[i] == '-' || bytes[i] == '+'))
    ++i;
  double number = 0;
  for (; i < bytes.size() && bytes[i] >= '0' && bytes[i] <= '9'; ++i)
    number = number * 10 + (bytes[i] - '0');
  number = negative ? -number : number;
  return static_cast<std::int32_t>(std::min(2147483647.0, std::max(-2147483648.0, number)));
}

void LiteralSetting::set(std::int32_t number, std::vector<std::string> &calls) {
  value = number;
  if (value > max)
    value = max;
  else if (value < min)
    value = min;
  calls.push_back(cxxString(name) + ".setStringValue:" + std::to_string(value));
}

void LiteralSetting::setAvailable(bool available, std::vector<std::string> &calls) {
  if (!available)
    set(standard, calls);
  calls.push_back(cxxString(name) + ".setViewAvailable:" + std::to_string(available));
}

LiteralRules::LiteralRules(NSDictionary *rules, ppd_file_t *ppd) : rules_(rules), ppd_(ppd) {
  for (NSString *name : {@"FrontLRM", @"FrontTBM", @"BackLRM", @"BackTBM"})
    models.emplace_back(name);
}

void LiteralRules::apply(std::size_t index) {
  LiteralSetting &own = models[index];
  for (NSUInteger i = 0; i < [rules_ count]; ++i) {
    id rule = [rules_ objectForKey:nsString(std::to_string(i))];
    NSString *object = text(rule, @"ActionObj");
    if (object == nil || ![object isEqualToString:own.name] || !holds(rule))
      continue;
    act(own, text(rule, @"ActionPattern"), text(rule, @"ActionValue"));
  }
}

void LiteralRules::act(LiteralSetting &own, NSString *pattern, NSString *actionValue) {
  if ([pattern isEqualToString:@"Value"]) {
    if (actionValue != nil)
      own.set(literalInteger(actionValue), calls);
  } else if ([pattern isEqualToString:@"View"]) {
    if ([actionValue isEqualToString:@"ON"])
      own.setAvailable(true, calls);
    else if ([actionValue isEqualToString:@"OFF"])
      own.setAvailable(false, calls);
  } else if ([pattern isEqualToString:@"Range"]) {
    NSArray *parts = [actionValue componentsSeparatedByString:@":"];
    if (actionValue == nil)
      own.min = own.max = 0;
    else if ([parts count] >= 2) {
      own.min = literalInteger([parts objectAtIndex:0]);
      own.max = literalInteger([parts objectAtIndex:1]);
    }
  } else if ([pattern isEqualToString:@"Default"]) {
    if (actionValue != nil)
      own.standard = literalInteger(actionValue);
  }
}

bool LiteralRules::holds(id rule) const {
  NSString *type = text(rule, @"ConditionType");
  NSString *pattern = text(rule, @"ConditionPattern");
  NSString *expected = text(rule, @"ConditionValue");
  if ([type isEqualToString:@"PPD"]) {
    if (pattern == nil || expected == nil)
      return false;
    const ppd_attr_t *attribute = ppdFindAttr(ppd_, cxxString(pattern).c_str(), nullptr);
    return attribute != nullptr && attribute->value != nullptr &&
           cxxString(expected) == attribute->value;
  }
  bool result = false;
  if (![type isEqualToString:@"Setting"])
    return result;
  for (const LiteralSetting &model : models) {
    if (![model.name isEqualToString:text(rule, @"ConditionObj")])
      continue;
    if ([pattern isEqualToString:@"Value"])
      result |= expected != nil && cxxString(expected) == std::to_string(model.value);
    else if ([pattern isEqualToString:@"Range"])
      result |= liesIn(model.value, expected);
  }
  return result;
}

} // namespace imageposition::test
