#import "ObservedSetting.h"

#import "Fields.h"
#import "Text.h"

using imageposition::test::cxxString;
using imageposition::test::nsString;
using imageposition::test::Observation;
using imageposition::test::observe;

namespace imageposition::test {

Observation &observe(ObservedSetting *setting) {
  void *&observation = field<void *>(setting, "observation");
  if (observation == nullptr)
    observation = new Observation;
  return *static_cast<Observation *>(observation);
}

} // namespace imageposition::test

namespace {

// Records the method; returns false if it is not to be passed on to the base.
bool record(ObservedSetting *setting, const std::string &operation,
            const std::string &argument = {}) {
  Observation &observation = observe(setting);
  if (observation.journal != nullptr)
    observation.journal->add(observation.name + "." + operation + argument);
  if (observation.onOperation)
    observation.onOperation(operation + argument);
  return observation.suppressed.count(operation) == 0;
}

} // namespace

@implementation ObservedSetting

- (void)dealloc {
  delete static_cast<Observation *>(observation);
  [super dealloc];
}

- (void)checkUI:(PMPrintSettings)printSettings {
  if (record(self, "checkUI:"))
    [super checkUI:printSettings];
}

- (void)getTicket:(PMPrintSettings)printSettings {
  if (record(self, "getTicket:"))
    [super getTicket:printSettings];
}

- (void)setTicket:(PMPrintSettings)printSettings {
  if (record(self, "setTicket:"))
    [super setTicket:printSettings];
}

- (void)setViewState:(BOOL)available {
  if (record(self, "setViewState:", std::to_string(available)))
    [super setViewState:available];
}

- (void)setStringValue:(NSString *)text {
  if (record(self, "setStringValue:", cxxString(text)))
    [super setStringValue:text];
}

- (void)setIntValue:(int32_t)number {
  if (record(self, "setIntValue:", std::to_string(number)))
    [super setIntValue:number];
}

- (void)setDefault:(int32_t)number {
  if (record(self, "setDefault:", std::to_string(number)))
    [super setDefault:number];
}

- (void)checkValue {
  if (record(self, "checkValue"))
    [super checkValue];
}

- (NSString *)getSettingName {
  Observation &own = observe(self);
  if (own.recordsGetters)
    record(self, "getSettingName");
  return own.settingName ? nsString(*own.settingName) : [super getSettingName];
}

- (NSString *)getValueString {
  Observation &own = observe(self);
  if (own.recordsGetters)
    record(self, "getValueString");
  if (own.hasNoValueString)
    return nil;
  return own.valueString ? nsString(*own.valueString) : [super getValueString];
}

- (void)applyUIConstraint:(PMPrintSettings)printSettings {
  if (record(self, "applyUIConstraint:"))
    [super applyUIConstraint:printSettings];
}

- (BOOL)checkUIConstraintCondition:(NSDictionary *)rule {
  record(self, "checkUIConstraintCondition:", cxxString([rule objectForKey:@"ActionValue"]));
  const Observation &own = observe(self);
  return own.condition ? *own.condition : [super checkUIConstraintCondition:rule];
}

@end
