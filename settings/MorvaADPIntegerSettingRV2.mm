#import "MorvaADPIntegerSettingRV2.h"

#include "IntegerText.hpp"
#import "ItemConformance.h"
#import "Keys.h"
#import "MorvaADPItemProtocols.h"
#import "PropertyValues.h"
#include "RangeText.hpp"
#import "SettingRules.h"
#import "TextBridge.h"
#include "ValueRange.hpp"

#import <AppKit/AppKit.h>

using imageposition::composeRangeText;
using imageposition::conforms;
using imageposition::integerOf;
using imageposition::integerString;
using imageposition::readInterval;
using imageposition::SettingRules;
using imageposition::stringEntry;
using imageposition::toOptionalText;
using imageposition::toString;
using imageposition::toText;
using imageposition::ValueRange;

namespace {

void logMalformed(NSString *settingName, NSString *key) {
  NSLog(@"The definition of the setting %@ cannot be used: its \"%@\" has too few parts.",
        settingName, key);
}

// Logs and returns nothing when the range has no ":".
std::optional<ValueRange> rangeOf(NSDictionary *record, NSString *settingName) {
  const auto string = toOptionalText(stringEntry(record, kRecordRange));
  const auto range = string ? readInterval(*string) : ValueRange{};
  if (!range)
    logMalformed(settingName, kRecordRange);
  return range;
}

// Logs and returns null when there are fewer than three parts.
NSArray *rangeLabelWordingOf(NSDictionary *record, NSString *settingName) {
  NSArray *parts = [stringEntry(record, kRecordRangeLabelWording) componentsSeparatedByString:@":"];
  if ([parts count] >= 3)
    return parts;
  logMalformed(settingName, kRecordRangeLabelWording);
  return nil;
}

void show(int32_t value, NSArray *items) {
  for (NSUInteger index = 0; index < [items count]; ++index) {
    id item = [items objectAtIndex:index];
    if (conforms(item, @protocol(TextFieldInterface)))
      [item setStringValue:integerString(value)];
  }
}

} // namespace

@implementation MorvaADPIntegerSettingRV2

- (id)initWithSettingInfo:(NSDictionary *)record
           ConstraintInfo:(NSDictionary *)rules
               BundleInfo:(NSBundle *)bundle
                      PPD:(ppd_file_t *)ppd {
  self = [super initWithSettingInfo:record ConstraintInfo:rules BundleInfo:bundle PPD:ppd];
  if (self == nil)
    return nil;
  const auto range = record != nil ? rangeOf(record, SettingName) : std::nullopt;
  NSArray *wording = range ? rangeLabelWordingOf(record, SettingName) : nil;
  if (wording == nil) {
    [self release];
    return nil;
  }
  Min = range->min;
  Max = range->max;
  RangeLabelInfoList = [wording retain];
  MinValueRangeLabelKey = [wording objectAtIndex:0];
  MaxValueRangeLabelKey = [wording objectAtIndex:1];
  ValueRangeLabelLocalizeKey = [wording objectAtIndex:2];
  Default = integerOf([record objectForKey:kRecordDefaultValue]);
  Value = Default;
  Rules = new SettingRules(rules);
  return self;
}

- (void)dealloc {
  delete Rules;
  [RangeLabelInfoList release];
  [super dealloc];
}

- (void)setRelatedSettings:(NSArray *)settings HandlingTarget:(NSArray *)items {
  RelatedSettings = settings;
  [HandlingTarget setArray:items];
  NSEnumerator *enumerator = [HandlingTarget objectEnumerator];
  for (id item = [enumerator nextObject]; item != nil; item = [enumerator nextObject]) {
    if ([item conformsToProtocol:@protocol(IntegerInterface)])
      [item setRange:Max Min:Min];
  }
}

- (void)checkUI:(PMPrintSettings)printSettings {
  const int32_t before = Value;
  for (NSUInteger index = 0; index < [HandlingTarget count]; ++index) {
    id item = [HandlingTarget objectAtIndex:index];
    if (conforms(item, @protocol(TextFieldInterface)) && [item getInt] != before)
      Value = [item getInt];
    if (conforms(item, @protocol(StepperInterface)))
      Value = static_cast<int32_t>(static_cast<uint32_t>(Value) +
                                   static_cast<uint32_t>([item getSteps]));
    if (conforms(item, @protocol(LocalizableInterface))) {
      const NSInteger tag = [item tag];
      if (tag == MorvaADPViewTagName)
        [item applyLocalizableStrings:SettingName BundleInfo:BundleInfo];
      else if (tag == MorvaADPViewTagRange)
        // Composed on every call, because a rule may have changed the range.
        [item
            setRangeStrings:toString(composeRangeText(
                                toText([BundleInfo localizedStringForKey:ValueRangeLabelLocalizeKey
                                                                   value:nil
                                                                   table:nil]),
                                toText(MaxValueRangeLabelKey), toText(MinValueRangeLabelKey),
                                ValueRange{Min, Max}))];
    }
  }
  [self setTicket:printSettings];
  [self getTicket:printSettings];
}

- (void)setTicket:(PMPrintSettings)printSettings {
  [self checkValue];
  const OSStatus status = PMPrintSettingsSetValue(
      printSettings, reinterpret_cast<CFStringRef>(TicketKey), integerString(Value), false);
  if (status != 0)
    [self getTicket:printSettings];
}

- (void)setViewState:(BOOL)available {
  if (!available)
    [self setIntValue:Default];
  for (NSUInteger index = 0; index < [HandlingTarget count]; ++index) {
    id item = [HandlingTarget objectAtIndex:index];
    if ([item conformsToProtocol:@protocol(ViewAvailableInterface)])
      [item setViewAvailable:available];
  }
}

- (void)getTicket:(PMPrintSettings)printSettings {
  CFTypeRef stored = nullptr;
  const OSStatus status =
      PMPrintSettingsGetValue(printSettings, reinterpret_cast<CFStringRef>(TicketKey), &stored);
  Value = status == 0 ? integerOf(static_cast<id>(const_cast<void *>(stored))) : Default;
  for (NSUInteger index = 0; index < [HandlingTarget count]; ++index) {
    if (conforms([HandlingTarget objectAtIndex:index], @protocol(TextFieldInterface)))
      [self setStringValue:integerString(Value)];
  }
}

- (NSString *)getValueString {
  return integerString(Value);
}

- (void)setStringValue:(NSString *)text {
  Value = integerOf(text);
  [self checkValue];
  show(Value, HandlingTarget);
}

- (void)setIntValue:(int32_t)value {
  Value = value;
  [self checkValue];
  show(Value, HandlingTarget);
}

- (void)checkValue {
  Value = ValueRange{Min, Max}.clamp(Value);
}

- (void)setDefault:(int32_t)value {
  Default = value;
}

- (int32_t)getValue {
  return Value;
}

@end
