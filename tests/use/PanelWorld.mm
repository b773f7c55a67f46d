#import "PanelWorld.h"

#import "Text.h"

#include <algorithm>

namespace imageposition::test {
namespace {

using Lines = std::vector<std::string>;

const Lines kNames = {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"};
const Lines kKeywords = {"AdjustDuplexPositionSupport", "MVDuplexShiftRange",
                         "MVBackLeftRightDefault", "MVBackTopBottomDefault", "Nothing"};
const Lines kIntervals = {"-20:20", "-100:100", "10:5",     "0:0",
                          "5:10",   "-10:-1",   " 3:+9:77", "-2147483648:2147483647",
                          "7",      "",         "x:y",      "2147483647:-2147483648"};
const Lines kNumbers = {"0",  "3",     "-7",         "25",           "",   "+5",
                        "05", "12abc", "2147483647", "-99999999999", "-10"};
const Lines kExpected = {"true", "Narrow", "Wide", "-10", "5", "0", "-1", "7", "05"};

NSMutableDictionary *indexed(NSArray *entries) {
  NSMutableDictionary *result = [NSMutableDictionary dictionary];
  for (NSUInteger i = 0; i < [entries count]; ++i)
    [result setObject:[entries objectAtIndex:i] forKey:nsString(std::to_string(i))];
  return result;
}

void put(NSMutableDictionary *record, NSString *key, const std::optional<std::string> &text) {
  if (text)
    [record setObject:nsString(*text) forKey:key];
}

NSDictionary *drawRule(Choices &choices) {
  NSMutableDictionary *rule = [NSMutableDictionary dictionary];
  const bool asksPrinter = choices.below(2) == 0;
  put(rule, @"ConditionObj", choices.perhapsOf(kNames));
  put(rule, @"ConditionType",
      asksPrinter ? "PPD" : choices.perhapsOf({"Setting", "Setting", "Setting", "setting"}));
  put(rule, @"ConditionPattern",
      asksPrinter ? choices.perhapsOf(kKeywords) : choices.perhapsOf({"Value", "Range", "range"}));
  put(rule, @"ConditionValue", choices.perhapsOf(choices.below(2) == 0 ? kExpected : kIntervals));
  put(rule, @"ActionObj", choices.perhapsOf(kNames));
  const std::string pattern = choices.of({"Value", "View", "Range", "Default", "view"});
  put(rule, @"ActionPattern", pattern);
  if (pattern == "View")
    put(rule, @"ActionValue", choices.perhapsOf({"ON", "OFF", "on"}));
  else
    put(rule, @"ActionValue", choices.perhapsOf(pattern == "Range" ? kIntervals : kNumbers));
  return rule;
}

NSDictionary *drawDefinition(Choices &choices, const std::string &name) {
  static const Lines kRanges(kIntervals.begin(), kIntervals.begin() + 7);
  NSMutableDictionary *record = [NSMutableDictionary dictionary];
  put(record, @"SettingName", name);
  put(record, @"TicketKey", name + "Ticket");
  put(record, @"SummaryInfoName", name + "Summary");
  put(record, @"Range", choices.perhapsOf(kRanges));
  put(record, @"RangeLabelWording",
      choices.of(
          {"{min}:{max}:RangeTemplate", "m:m:m to {max}", "::Empty", "a:b:NoSuchText:more"}));
  put(record, @"DefaultValue", choices.perhapsOf(kNumbers));
  return record;
}

std::int32_t number(NSString *text) {
  const long long value = std::strtoll(cxxString(text).c_str(), nullptr, 10);
  return static_cast<std::int32_t>(std::clamp<long long>(value, INT32_MIN, INT32_MAX));
}

void readDefinition(NSDictionary *record, PanelModel &model) {
  const std::string name = cxxString([record objectForKey:@"SettingName"]);
  const auto index = std::find(kNames.begin(), kNames.end(), name) - kNames.begin();
  PanelModel::Offset &offset = model.offsets[index];
  model.definitionOrder.push_back(static_cast<PanelModel::Name>(index));
  offset.ticketKey = cxxString([record objectForKey:@"TicketKey"]);
  offset.summaryName = cxxString([record objectForKey:@"SummaryInfoName"]);
  NSArray *range = [[record objectForKey:@"Range"] componentsSeparatedByString:@":"];
  offset.min = range == nil ? 0 : number([range objectAtIndex:0]);
  offset.max = range == nil ? 0 : number([range objectAtIndex:1]);
  NSArray *wording = [[record objectForKey:@"RangeLabelWording"] componentsSeparatedByString:@":"];
  offset.minMark = cxxString([wording objectAtIndex:0]);
  offset.maxMark = cxxString([wording objectAtIndex:1]);
  offset.rangeTemplate = cxxString([wording objectAtIndex:2]);
  offset.value = offset.defaultValue = number([record objectForKey:@"DefaultValue"]);
}

PanelRule ruleOf(NSDictionary *record) {
  const auto part = [=](NSString *key) -> PanelRule::Part {
    id text = [record objectForKey:key];
    return text == nil ? std::nullopt : PanelRule::Part(cxxString(text));
  };
  return {part(@"ConditionObj"),   part(@"ConditionType"), part(@"ConditionPattern"),
          part(@"ConditionValue"), part(@"ActionObj"),     part(@"ActionPattern"),
          part(@"ActionValue")};
}

NSDictionary *tableIn(NSBundle *bundle, NSString *name) {
  return [NSDictionary dictionaryWithContentsOfFile:[bundle pathForResource:name ofType:@"plist"]];
}

} // namespace

void Printer::mark(Choices &choices) {
  const bool duplex = choices.below(2) == 0;
  std::optional<std::string> &marked = duplex ? facts->duplex : facts->banner;
  const std::string choice = duplex ? choices.of({"DuplexNoTumble", "DuplexTumble", "None"})
                                    : choices.of({"False", "True"});
  if (!marked)
    return;
  ppd->mark(duplex ? "Duplex" : "MVBannerPagePrint", choice);
  marked = choice;
}

std::shared_ptr<Printer> drawPrinter(Choices &choices) {
  auto printer = std::make_shared<Printer>();
  printer->facts = std::make_shared<PrinterFacts>();
  Lines lines;
  const auto attribute = [&](const std::string &keyword, const Lines &values) {
    const std::string value = choices.of(values);
    if (value.empty())
      return;
    lines.push_back("*" + keyword + ": \"" + value + "\"");
    printer->facts->attributes[keyword] = value;
  };
  attribute(kKeywords[0], {"true", "true", "true", "true", "true", "True", ""});
  attribute(kKeywords[1], {"", "Narrow", "Wide", "narrow"});
  attribute(kKeywords[2], {"", "-10", "-5", "5", "10", "7"});
  attribute(kKeywords[3], {"", "-10", "-5", "5", "10", "+5"});
  const auto option = [&](const std::string &keyword, const Lines &marked) {
    for (const std::string &line : TestPpd::option(keyword, marked))
      lines.push_back(line);
    return marked.front();
  };
  if (choices.below(4) != 3)
    printer->facts->duplex = option("Duplex", {"DuplexNoTumble", "DuplexTumble", "None"});
  if (choices.below(4) != 3)
    printer->facts->banner = option("MVBannerPagePrint", {"False", "True"});
  printer->ppd = std::make_unique<TestPpd>(lines);
  return printer;
}

NSBundle *shippedBundle() {
  // Never destroyed, because GNUstep is gone before static objects are.
  static TestBundle &bundle = *new TestBundle;
  static NSBundle *shipped = nil;
  if (shipped == nil) {
    for (const char *name : {"SettingInfo.plist", "ConstraintInfo.plist", "en.lproj"})
      bundle.copy(std::string(IMAGEPOSITION_RESOURCES "/") + name);
    shipped = [bundle.bundle() retain];
  }
  return shipped;
}

std::unique_ptr<TestBundle> drawBundle(Choices &choices) {
  auto bundle = std::make_unique<TestBundle>();
  NSMutableArray *records = [NSMutableArray array];
  const unsigned first = choices.below(4);
  for (unsigned i = 0; i < 4; ++i)
    [records addObject:drawDefinition(choices, kNames[(first + i) % 4])];
  bundle->writePropertyList("SettingInfo", indexed(records));
  NSMutableArray *rules = [NSMutableArray array];
  for (unsigned count = choices.below(8); count > 0; --count)
    [rules addObject:drawRule(choices)];
  bundle->writePropertyList("ConstraintInfo", indexed(rules));
  bundle->writeStrings({{"EnableImgPstAdj", "Separate offsets for the back"},
                        {"FrontLRM", "Front left-right"},
                        {"LRM", "Left-right"},
                        {"BackTBM", "%s%n"},
                        {"RangeTemplate", "{min} to {max}, {max}{min}"}});
  return bundle;
}

void readBundle(NSBundle *bundle, PanelModel &model) {
  NSDictionary *definitions = tableIn(bundle, @"SettingInfo");
  model.definitionOrder.clear();
  for (NSUInteger i = 0; i < [definitions count]; ++i)
    readDefinition([definitions objectForKey:nsString(std::to_string(i))], model);
  NSDictionary *rules = tableIn(bundle, @"ConstraintInfo");
  for (NSUInteger i = 0; i < [rules count]; ++i)
    model.rules.push_back(ruleOf([rules objectForKey:nsString(std::to_string(i))]));
  Lines keys = {"EnableImgPstAdj", "RestoreDefaults", "LRM", "TBM"};
  for (const PanelModel::Offset &offset : model.offsets)
    keys.insert(keys.end(), {offset.name, offset.summaryName, offset.rangeTemplate});
  for (const std::string &key : keys)
    model.strings[key] = cxxString([bundle localizedStringForKey:nsString(key)
                                                           value:nil
                                                           table:nil]);
}

id drawValue(Choices &choices, StoredValue &value) {
  static const Lines kTexts = {"0",   "-1",          "7", "-25",  "abc",  "99999999999",
                               "150", "-2147483648", "",  "True", "true", " +9x"};
  static const Lines kPlain = {"0", "-3", "400", "99999999999", "-99999999999", "1"};
  switch (choices.below(8)) {
  case 0:
    value = {choices.of(kPlain), StoredValue::Kind::Number};
    return [NSNumber numberWithLongLong:std::stoll(value.text)];
  case 1: {
    id foreign = choices.below(2) == 0 ? static_cast<id>([NSNull null])
                                       : static_cast<id>([NSArray arrayWithObject:@"1"]);
    value = {foreign == [NSNull null] ? std::string() : cxxString(foreign),
             StoredValue::Kind::Foreign};
    return foreign;
  }
  default:
    value = {choices.of(kTexts)};
    return nsString(value.text);
  }
}

} // namespace imageposition::test
