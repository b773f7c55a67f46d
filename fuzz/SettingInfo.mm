// Setting definitions: any property list in the bundle creates the settings that it describes, or
// no controller and a line in the log.
#include "Check.hpp"
#import "Fields.h"
#import "LiteralRules.h"
#import "LiveObjects.h"
#import "LogCapture.h"
#import "MorvaADPSettingsCollectorRV2.h"
#import "PropertyList.h"
#import "RecordingHost.h"
#import "TestBundle.h"
#import "TestPool.h"
#import "TestPpd.h"
#import "TestPrintSettings.h"
#import "Text.h"

#include <cmath>
#include <map>

using namespace imageposition::test;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

const imageposition::fuzz::Vocabulary kVocabulary = {
    {"SettingName", "TicketKey", "SummaryInfoName", "Range", "RangeLabelWording", "DefaultValue"},
    {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM", "-20:20", "10:5", "0:0", "a:b:c", "::", "7",
     "-99999999999", "5:99999999999:1", "", ":", "frontlrm", "%@%n%s"}};

struct Expected {
  std::int32_t min = 0;
  std::int32_t max = 0;
  std::int32_t value = 0;
};

NSString *textIn(id record, NSString *key) {
  id entry = [record isKindOfClass:[NSDictionary class]] ? [record objectForKey:key] : nil;
  return [entry isKindOfClass:[NSString class]] ? entry : nil;
}

std::int32_t numberOf(id value) {
  if (![value isKindOfClass:[NSNumber class]])
    return [value isKindOfClass:[NSString class]] ? literalInteger(value) : 0;
  const double number = std::trunc([value doubleValue]);
  return static_cast<std::int32_t>(std::min(2147483647.0, std::max(-2147483648.0, number)));
}

/// The expected result for a list of definitions.
struct Outcome {
  bool isUsable = true;
  bool repeatsName = false;
  std::map<std::string, Expected> settings;
};

Outcome outcomeOf(id list) {
  static NSArray *const kNames =
      [[NSArray alloc] initWithObjects:@"FrontLRM", @"FrontTBM", @"BackLRM", @"BackTBM", nil];
  Outcome outcome;
  outcome.isUsable = [list isKindOfClass:[NSDictionary class]];
  for (NSUInteger i = 0; outcome.isUsable && i < [list count]; ++i) {
    id record = [list objectForKey:nsString(std::to_string(i))];
    NSString *name = textIn(record, @"SettingName");
    if (name == nil || ![kNames containsObject:name])
      continue;
    NSString *range = textIn(record, @"Range");
    NSArray *bounds = [range componentsSeparatedByString:@":"];
    NSArray *wording = [textIn(record, @"RangeLabelWording") componentsSeparatedByString:@":"];
    outcome.isUsable = (range == nil || [bounds count] > 1) && [wording count] > 2;
    outcome.repeatsName = outcome.repeatsName || outcome.settings.count(cxxString(name)) != 0;
    if (!outcome.isUsable)
      break;
    Expected &expected = outcome.settings[cxxString(name)];
    expected.min = range == nil ? 0 : literalInteger([bounds objectAtIndex:0]);
    expected.max = range == nil ? 0 : literalInteger([bounds objectAtIndex:1]);
    expected.value = numberOf([record objectForKey:@"DefaultValue"]);
  }
  return outcome;
}

void checkSettings(MorvaADPSettingsCollectorRV2 *controller, const Outcome &outcome) {
  for (const char *name : {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"}) {
    id setting = field<id>(controller, (std::string(name) + "Settings").c_str());
    const auto expected = outcome.settings.find(name);
    check((setting != nil) == (expected != outcome.settings.end()),
          "the controller has the settings of the list");
    if (setting == nil)
      continue;
    check(field<std::int32_t>(setting, "Min") == expected->second.min, "the lower bound");
    check(field<std::int32_t>(setting, "Max") == expected->second.max, "the upper bound");
    check(field<std::int32_t>(setting, "Default") == expected->second.value, "the default");
    checkSame(cxxString([setting getValueString]), std::to_string(expected->second.value),
              "the first value");
  }
}

void use(MorvaADPSettingsCollectorRV2 *controller) {
  [controller prepareForShow];
  [controller getTicket];
  [controller saveTicket];
  [controller restoreDefaults];
  check([controller getSummaryInfo] != nil, "there is a summary");
}

void play(id list) {
  const LogCapture log;
  const Outcome outcome = outcomeOf(list);
  if (outcome.repeatsName)
    return; // the controller leaks the earlier setting of that name, on purpose
  TestBundle bundle;
  bundle.writePropertyList("SettingInfo", list);
  bundle.writePropertyList("ConstraintInfo", [NSDictionary dictionary]);
  static const TestPpd kPpd;
  TestPrintSettings settings;
  RecordingHost *host = [RecordingHost hostWithPpd:kPpd settings:settings.handle()];
  MorvaADPSettingsCollectorRV2 *controller =
      [[MorvaADPSettingsCollectorRV2 alloc] initWithCallback:host Bundle:bundle.bundle()];
  check((controller != nil) == outcome.isUsable,
        "a controller is created if the definitions are usable");
  if (controller != nil) {
    checkSettings(controller, outcome);
    use(controller);
  } else if ([list isKindOfClass:[NSDictionary class]]) {
    check(log.lines().size() == 1, "one log line says why there is no panel");
  }
  [controller release];
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  static const LiveObjects kCounting;
  const int before = LiveObjects::count("MorvaADPIntegerSettingRV2");
  {
    const Pool pool;
    Choices choices(data, size);
    play(imageposition::fuzz::drawPropertyList(choices, kVocabulary));
  }
  check(LiveObjects::count("MorvaADPIntegerSettingRV2") == before, "no setting is leaked");
  return 0;
}
