#import "Recorders.h"

#import "Text.h"

using imageposition::test::cxxString;
using imageposition::test::Journal;
using imageposition::test::nsString;

static std::string flag(BOOL value) { return std::to_string(int(value)); }

static std::string colour(NSColor *value) {
  if ([value isEqual:[NSColor blackColor]])
    return "black";
  if ([value isEqual:[NSColor lightGrayColor]])
    return "lightGray";
  return cxxString(value);
}

static std::string handle(PMPrintSettings settings) {
  return settings == nullptr ? "null" : "settings";
}

@implementation Recorder

- (id)initWithName:(const std::string &)recorderName journal:(Journal *)recorderJournal {
  if ((self = [super init]) != nil) {
    name = new std::string(recorderName);
    journal = recorderJournal;
  }
  return self;
}

- (void)dealloc {
  delete name;
  [super dealloc];
}

- (oneway void)release {
  if (recordsReleases)
    journal->add(*name + ".release");
  [super release];
}

- (void)record:(const std::string &)operation {
  journal->add(*name + "." + operation);
}

@end

@implementation RecordingControl

- (void)dealloc {
  [text release];
  [super dealloc];
}

- (void)setEnabled:(BOOL)enabled {
  [self record:"setEnabled:" + flag(enabled)];
}

- (void)setTextColor:(NSColor *)value {
  [self record:"setTextColor:" + colour(value)];
}

- (void)setStringValue:(NSString *)value {
  [self record:"setStringValue:" + cxxString(value)];
  [text autorelease];
  text = [value copy];
}

- (NSString *)stringValue {
  [self record:"stringValue"];
  return text;
}

- (void)setTitle:(NSString *)title {
  [self record:"setTitle:" + cxxString(title)];
}

- (NSInteger)state {
  [self record:"state"];
  return stateValue;
}

- (void)setState:(NSInteger)state {
  [self record:"setState:" + std::to_string(state)];
  stateValue = state;
}

- (void)setViewAvailable:(BOOL)available {
  [self record:"setViewAvailable:" + flag(available)];
}

- (void)applyLocalizableStrings:(NSString *)key BundleInfo:(NSBundle *)bundle {
  (void)bundle;
  [self record:"applyLocalizableStrings:" + cxxString(key)];
}

- (void)catchEventCall {
  [self record:"catchEventCall"];
}

@end

@implementation RecordingActor

- (void)catchEventCall {
  [super catchEventCall];
}

@end

@implementation RecordingSetting

- (id)initWithName:(const std::string &)recorderName journal:(Journal *)recorderJournal {
  if ((self = [super initWithName:recorderName journal:recorderJournal]) != nil)
    value = new std::string(recorderName + "'s value");
  return self;
}

- (void)dealloc {
  delete value;
  [related release];
  [targets release];
  [super dealloc];
}

- (void)setRelatedSettings:(NSArray *)settings HandlingTarget:(NSArray *)items {
  [self record:"setRelatedSettings:HandlingTarget:"];
  related = [settings retain];
  targets = [items retain];
}

- (void)checkUI:(PMPrintSettings)settings {
  [self record:"checkUI:" + handle(settings)];
}

- (void)getTicket:(PMPrintSettings)settings {
  [self record:"getTicket:" + handle(settings)];
}

- (void)setTicket:(PMPrintSettings)settings {
  [self record:"setTicket:" + handle(settings)];
}

- (void)applyUIConstraint:(PMPrintSettings)settings {
  [self record:"applyUIConstraint:" + handle(settings)];
}

- (void)checkValue {
  [self record:"checkValue"];
}

- (void)setIntValue:(int32_t)number {
  [self record:"setIntValue:" + std::to_string(number)];
}

- (void)setStringValue:(NSString *)string {
  [self record:"setStringValue:" + cxxString(string)];
}

- (void)setViewState:(BOOL)available {
  [self record:"setViewState:" + flag(available)];
}

- (void)setDefault:(int32_t)number {
  [self record:"setDefault:" + std::to_string(number)];
}

- (NSString *)getValueString {
  [self record:"getValueString"];
  return nsString(*value);
}

- (NSString *)getSettingName {
  [self record:"getSettingName"];
  return nsString(*name);
}

- (NSString *)getSummaryInfoName {
  [self record:"getSummaryInfoName"];
  return nsString(*name + "Summary");
}

@end

@implementation RecordingStrings

- (NSString *)localizedStringForKey:(NSString *)key
                              value:(NSString *)value
                              table:(NSString *)table {
  [self record:"localize:" + cxxString(key)];
  if (value != nil || table != nil)
    return @"looked up with a default value or a table";
  return [NSString stringWithFormat:@"[%@]", key];
}

@end

static Journal *controllerJournal;

static void recordOwn(const char *operation, const std::string &argument = {}) {
  if (controllerJournal != nullptr)
    controllerJournal->add(std::string("self.") + operation + argument);
}

@implementation RecordingController

+ (void)recordInto:(Journal *)journal {
  controllerJournal = journal;
}

- (void)UIItemActionListener:(id)sender {
  recordOwn("UIItemActionListener:");
  [super UIItemActionListener:sender];
}
- (void)notifyUI {
  recordOwn("notifyUI");
  [super notifyUI];
}
- (void)checkSettingsValue {
  recordOwn("checkSettingsValue");
  [super checkSettingsValue];
}
- (void)getEnableImgPstAdjTicket:(PMPrintSettings)settings {
  recordOwn("getEnableImgPstAdjTicket:", handle(settings));
  [super getEnableImgPstAdjTicket:settings];
}
- (BOOL)getTicket {
  recordOwn("getTicket");
  return [super getTicket];
}
- (void)setEnableImgPstAdjTicket:(PMPrintSettings)settings {
  recordOwn("setEnableImgPstAdjTicket:", handle(settings));
  [super setEnableImgPstAdjTicket:settings];
}
- (BOOL)saveTicket {
  recordOwn("saveTicket");
  return [super saveTicket];
}
- (void)CBSCInitializeView {
  recordOwn("CBSCInitializeView");
  [super CBSCInitializeView];
}
- (BOOL)checkImagePositionAdjustValid {
  recordOwn("checkImagePositionAdjustValid");
  return [super checkImagePositionAdjustValid];
}
- (void)grayUI {
  recordOwn("grayUI");
  [super grayUI];
}
- (void)setFrontName {
  recordOwn("setFrontName");
  [super setFrontName];
}
- (void)setFrontLRMState:(BOOL)usable {
  recordOwn("setFrontLRMState:", flag(usable));
  [super setFrontLRMState:usable];
}
- (void)setFrontTBMState:(BOOL)usable {
  recordOwn("setFrontTBMState:", flag(usable));
  [super setFrontTBMState:usable];
}
- (void)setBackLRMState:(BOOL)usable {
  recordOwn("setBackLRMState:", flag(usable));
  [super setBackLRMState:usable];
}
- (void)setBackTBMState:(BOOL)usable {
  recordOwn("setBackTBMState:", flag(usable));
  [super setBackTBMState:usable];
}
- (void)restoreDefaults {
  recordOwn("restoreDefaults");
  [super restoreDefaults];
}

@end
