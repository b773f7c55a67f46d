// Rule tables as property lists, applied by real settings and by a literal walk over the same list.
#include "Check.hpp"
#import "Fields.h"
#import "LiteralRules.h"
#import "MorvaADPIntegerSettingRV2.h"
#import "PropertyList.h"
#import "RecordingItems.h"
#import "TestBundle.h"
#import "TestPool.h"
#import "TestPpd.h"
#import "Text.h"

#include <array>

using namespace imageposition::test;
using imageposition::fuzz::checkSame;

namespace {

const imageposition::fuzz::Vocabulary kVocabulary = {
    {"ActionObj", "ConditionObj", "ConditionType", "ConditionPattern", "ConditionValue",
     "ActionPattern", "ActionValue"},
    {"FrontLRM", "FrontTBM",    "BackLRM", "BackTBM", "PPD", "Setting", "Value",
     "View",     "Range",       "Default", "ON",      "OFF", "ShiftA",  "ShiftB",
     "on",       "off",         "0",       "3",       "-4",  "-4:4",    "4:-4",
     "05",       "99999999999", ":",       ""}};

/// Four settings like a panel's, whose entry fields record the calls they receive.
class Panel {
public:
  explicit Panel(NSDictionary *rules, NSBundle *bundle, ppd_file_t *ppd) {
    NSDictionary *definition = [NSDictionary
        dictionaryWithObjectsAndKeys:@"-20:20", @"Range", @"a:b:c", @"RangeLabelWording", @"3",
                                     @"DefaultValue", nil];
    NSMutableArray *list = [NSMutableArray array];
    for (std::size_t i = 0; i < kNames.size(); ++i) {
      NSMutableDictionary *record = [NSMutableDictionary dictionaryWithDictionary:definition];
      [record setObject:nsString(kNames[i]) forKey:@"SettingName"];
      settings[i] = [[[MorvaADPIntegerSettingRV2 alloc] initWithSettingInfo:record
                                                             ConstraintInfo:rules
                                                                 BundleInfo:bundle
                                                                        PPD:ppd] autorelease];
      [records_ addObject:record]; // a setting borrows its strings
      [list addObject:settings[i]];
    }
    for (std::size_t i = 0; i < kNames.size(); ++i) {
      RecordingItem *item = [RecordingItem itemNamed:kNames[i]
                                        capabilities:kEntryField
                                             journal:&journal];
      [settings[i] setRelatedSettings:list HandlingTarget:[NSArray arrayWithObject:item]];
    }
    journal.clear();
  }

  static constexpr std::array<const char *, 4> kNames = {"FrontLRM", "FrontTBM", "BackLRM",
                                                         "BackTBM"};
  std::array<MorvaADPIntegerSettingRV2 *, 4> settings;
  Journal journal;

private:
  NSMutableArray *records_ = [NSMutableArray array];
};

std::string stateOf(const Panel &panel) {
  std::string state;
  for (id setting : panel.settings)
    for (const char *name : {"Value", "Min", "Max", "Default"})
      state += std::to_string(field<std::int32_t>(setting, name)) + " ";
  for (const std::string &line : panel.journal.lines())
    state += "\n" + line;
  return state;
}

std::string stateOf(const LiteralRules &rules) {
  std::string state;
  for (const LiteralSetting &setting : rules.models)
    for (const std::int32_t number : {setting.value, setting.min, setting.max, setting.standard})
      state += std::to_string(number) + " ";
  for (const std::string &line : rules.calls)
    state += "\n" + line;
  return state;
}

void play(Choices &choices, NSDictionary *rules) {
  // Never destroyed, because GNUstep is gone before static objects are.
  static TestBundle &bundle = *new TestBundle;
  static const TestPpd kPpd({"*ShiftA: \"on\"", "*ShiftB: \"-4\"", "*ShiftEmpty: \"\""});
  Panel panel(rules, bundle.bundle(), kPpd);
  LiteralRules literal(rules, kPpd);
  for (int edits = 0; edits < 4; ++edits) {
    const unsigned which = choices.below(4);
    const std::int32_t number = static_cast<std::int32_t>(choices.below(11)) - 5;
    [panel.settings[which] setIntValue:number];
    literal.models[which].set(number, literal.calls);
    for (std::size_t i = 0; i < panel.settings.size(); ++i) {
      [panel.settings[i] applyUIConstraint:nullptr];
      literal.apply(i);
    }
    checkSame(stateOf(panel), stateOf(literal), "the settings do what a literal walk does");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const Pool pool;
  Choices edits(data, size);
  Choices choices(data, size);
  id list = imageposition::fuzz::drawPropertyList(choices, kVocabulary);
  if (![list isKindOfClass:[NSDictionary class]])
    return 0;
  play(edits, list);
  return 0;
}
