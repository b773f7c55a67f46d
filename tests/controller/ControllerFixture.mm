#import "ControllerFixture.h"

#import <AppKit/AppKit.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace imageposition::test {

NSMutableDictionary *definition(const std::string &name) {
  NSMutableDictionary *record = [NSMutableDictionary dictionary];
  [record setObject:nsString(name) forKey:@"SettingName"];
  [record setObject:nsString(name + "Ticket") forKey:@"TicketKey"];
  [record setObject:nsString(name + "Summary") forKey:@"SummaryInfoName"];
  [record setObject:@"-20:20" forKey:@"Range"];
  [record setObject:@"{min}:{max}:RangeTemplate" forKey:@"RangeLabelWording"];
  [record setObject:@"0" forKey:@"DefaultValue"];
  return record;
}

NSMutableDictionary *definitions(const std::vector<NSDictionary *> &records) {
  NSMutableDictionary *result = [NSMutableDictionary dictionary];
  for (std::size_t i = 0; i < records.size(); ++i)
    [result setObject:records[i] forKey:nsString(std::to_string(i))];
  return result;
}

NSMutableDictionary *fourDefinitions() {
  std::vector<NSDictionary *> records;
  for (const std::string &name : kNames)
    records.push_back(definition(name));
  return definitions(records);
}

NSMutableDictionary *rules(const std::vector<Lines> &fields) {
  static const char *const kKeys[] = {"ConditionObj",   "ConditionType", "ConditionPattern",
                                      "ConditionValue", "ActionObj",     "ActionPattern",
                                      "ActionValue"};
  std::vector<NSDictionary *> table;
  for (const Lines &rule : fields) {
    NSMutableDictionary *record = [NSMutableDictionary dictionary];
    for (std::size_t i = 0; i < rule.size(); ++i)
      [record setObject:nsString(rule[i]) forKey:nsString(kKeys[i])];
    table.push_back(record);
  }
  return definitions(table);
}

Lines operator+(Lines left, const Lines &right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

Lines duplexPrinter() {
  return TestPpd::option("Duplex", {"DuplexNoTumble", "DuplexTumble", "None"}) +
         TestPpd::option("MVBannerPagePrint", {"False", "True"});
}

void ControllerFixture::SetUp() {
  log = std::make_unique<LogCapture>();
  bundle = std::make_unique<TestBundle>();
  settings = std::make_unique<TestPrintSettings>();
  ppd = std::make_unique<TestPpd>(duplexPrinter());
  host = [[RecordingHost hostWithPpd:ppd->get() settings:settings->handle()] retain];
}

void ControllerFixture::TearDown() {
  [RecordingController recordInto:nullptr];
  [controller release];
  for (const auto &[name, recorder] : fillings_)
    [recorder release];
  [host release];
  removeInterfaceFile();
}

void ControllerFixture::writeBundle(NSDictionary *settingInfo, NSDictionary *constraintInfo) {
  bundle->writePropertyList("SettingInfo", settingInfo);
  bundle->writePropertyList("ConstraintInfo", constraintInfo);
  bundle->writeStrings({{"EnableImgPstAdj", "Separate offsets for the back"},
                        {"RestoreDefaults", "Back to zero"},
                        {"PluginName", "Image Position"},
                        {"FrontLRM", "Front left-right"},
                        {"FrontTBM", "Front top-bottom"},
                        {"BackLRM", "Back left-right"},
                        {"BackTBM", "Back top-bottom"},
                        {"LRM", "Left-right"},
                        {"TBM", "Top-bottom"},
                        {"FrontLRMSummary", "Front left-right shift"},
                        {"FrontTBMSummary", "Front top-bottom shift"},
                        {"BackLRMSummary", "Back left-right shift"},
                        {"BackTBMSummary", "Back top-bottom shift"},
                        {"RangeTemplate", "{min} to {max}"}});
}

// NSBundle caches the contents of its folders. GNUstep's headers do not declare this method.
static void lookAgain() {
  const SEL operation = NSSelectorFromString(@"cleanPathCache");
  ASSERT_TRUE([[NSBundle mainBundle] respondsToSelector:operation]);
  [[NSBundle mainBundle] performSelector:operation];
}

static std::filesystem::path interfaceFile() {
  const std::filesystem::path folder = cxxString([[NSBundle mainBundle] bundlePath]);
  return folder / "Resources" / "ImagePositionAdjustPrint.xib";
}

void ControllerFixture::writeInterfaceFile() {
  std::ifstream file(IMAGEPOSITION_RESOURCES "/ImagePositionAdjustPrint.xib", std::ios::binary);
  std::stringstream bytes;
  ASSERT_TRUE(bytes << file.rdbuf());
  writeInterfaceFile(bytes.str());
}

void ControllerFixture::writeInterfaceFile(const std::string &bytes) {
  std::filesystem::create_directories(interfaceFile().parent_path());
  std::ofstream file(interfaceFile(), std::ios::binary);
  file << bytes;
  ASSERT_TRUE(file.flush());
  lookAgain();
}

void ControllerFixture::removeInterfaceFile() {
  std::filesystem::remove(interfaceFile());
  lookAgain();
}

MorvaADPSettingsCollectorRV2 *ControllerFixture::make() {
  [controller release];
  controller = nil;
  controller = [[MorvaADPSettingsCollectorRV2 alloc] initWithCallback:host Bundle:bundle->bundle()];
  return controller;
}

MorvaADPSettingsCollectorRV2 *ControllerFixture::makeRecording() {
  [RecordingController recordInto:&journal];
  controller = [[RecordingController alloc] initWithCallback:host Bundle:bundle->bundle()];
  return controller;
}

void ControllerFixture::fill(const char *fieldName, Recorder *recorder) {
  fillings_.emplace_back(fieldName, recorder);
  get<id>(fieldName) = recorder;
}

MorvaADPSettingsCollectorRV2 *ControllerFixture::makeHollow() {
  writeBundle([NSDictionary dictionary]);
  makeRecording();
  for (const std::string &name : kNames) {
    for (const char *suffix : {"Text", "Stepper", "Label", "RangeLabel"})
      fill((name + suffix).c_str(), [[RecordingActor alloc] initWithName:name + suffix
                                                                 journal:&journal]);
    // The controller releases its settings; the fixture keeps another reference.
    fill((name + "Settings").c_str(), [[[RecordingSetting alloc] initWithName:name
                                                                      journal:&journal] retain]);
  }
  fill("chkEnableImagePositionAdjust", [[RecordingControl alloc] initWithName:"check"
                                                                      journal:&journal]);
  fill("btnRestore2Defalut", [[RecordingControl alloc] initWithName:"button" journal:&journal]);
  [get<id>("Bundle") release];
  fill("Bundle", [[[RecordingStrings alloc] initWithName:"strings" journal:&journal] retain]);
  host->journal = &journal;
  journal.clear();
  log->clear();
  return controller;
}

MorvaADPIntegerSettingRV2 *ControllerFixture::setting(const std::string &name) {
  return (MorvaADPIntegerSettingRV2 *)get<id>((name + "Settings").c_str());
}

Lines ControllerFixture::logWithoutTraces() {
  Lines lines;
  for (const std::string &line : log->lines())
    if (line.rfind("@@@", 0) != 0)
      lines.push_back(line);
  return lines;
}

} // namespace imageposition::test
