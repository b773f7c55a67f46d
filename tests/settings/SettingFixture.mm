#import "SettingFixture.h"

namespace imageposition::test {

NSDictionary *dictionary(const Texts &texts) {
  NSMutableDictionary *result = [NSMutableDictionary dictionary];
  for (const auto &[key, text] : texts)
    [result setObject:nsString(text) forKey:nsString(key)];
  return result;
}

NSDictionary *ruleTable(const std::vector<Texts> &rules) {
  NSMutableDictionary *result = [NSMutableDictionary dictionary];
  for (std::size_t i = 0; i < rules.size(); ++i)
    [result setObject:dictionary(rules[i]) forKey:nsString(std::to_string(i))];
  return result;
}

NSArray *array(std::initializer_list<id> elements) {
  NSMutableArray *result = [NSMutableArray array];
  for (id element : elements)
    [result addObject:element];
  return result;
}

Texts record(const Texts &changes) {
  Texts texts = {{"TicketKey", "LeftRightMargin"},           {"SettingName", "FrontLRM"},
                 {"SummaryInfoName", "SummaryTitle"},        {"Range", "-20:20"},
                 {"RangeLabelWording", "MIN:MAX:RangeText"}, {"DefaultValue", "3"}};
  for (const auto &[key, text] : changes)
    texts[key] = text;
  return texts;
}

MorvaADPIntegerSettingRV2 *SettingTest::make(const Texts &definition,
                                             const std::vector<Texts> &rules) {
  return make([MorvaADPIntegerSettingRV2 class], dictionary(definition), ruleTable(rules));
}

MorvaADPIntegerSettingRV2 *SettingTest::make(Class type, NSDictionary *definition,
                                             NSDictionary *rules) {
  return [[[type alloc] initWithSettingInfo:definition
                             ConstraintInfo:rules
                                 BundleInfo:resources.bundle()
                                        PPD:printer] autorelease];
}

void SettingTest::bind(MorvaADPSettingRV2 *setting, std::initializer_list<id> items) {
  [setting setRelatedSettings:array({setting}) HandlingTarget:array(items)];
  journal.clear();
}

void SettingTest::relate(std::initializer_list<MorvaADPSettingRV2 *> settings) {
  NSMutableArray *list = [NSMutableArray array];
  for (MorvaADPSettingRV2 *setting : settings)
    [list addObject:setting];
  for (MorvaADPSettingRV2 *setting : settings)
    [setting setRelatedSettings:list HandlingTarget:[NSArray array]];
}

RecordingItem *SettingTest::item(const char *name, unsigned capabilities, NSInteger tag) {
  RecordingItem *made = [RecordingItem itemNamed:name capabilities:capabilities journal:&journal];
  made->tagValue = tag;
  return made;
}

} // namespace imageposition::test
