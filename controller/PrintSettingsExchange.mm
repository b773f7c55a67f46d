#import "MorvaADPSettingsCollectorRV2.h"

#import "Keys.h"
#import "LocalizedText.h"
#import "PropertyValues.h"

using imageposition::integerString;
using imageposition::localizedText;
using imageposition::stringEntry;

namespace {

// A missing setting has no title or no value, and gets no entry.
void addEntry(NSMutableDictionary *summary, NSMutableArray *order, NSString *title,
              NSString *value) {
  if (title == nil || value == nil)
    return;
  [summary setObject:value forKey:title];
  [order addObject:title];
}

// On some systems an unchecked button has an empty string value; a missing button has a null one.
NSString *stateString(NSButton *checkbox) {
  NSString *string = [checkbox stringValue];
  return [string length] > 0 ? string : @"0";
}

} // namespace

@implementation MorvaADPSettingsCollectorRV2 (PrintSettingsExchange)

- (void)prepareForShow {
  PMPrintSettings printSettings = [PDECallback printSettings];
  for (NSUInteger index = 0; index < [SettingInfoDictionary count]; ++index) {
    NSString *name =
        stringEntry([SettingInfoDictionary objectForKey:integerString(static_cast<int32_t>(index))],
                    kRecordSettingName);
    MorvaADPIntegerSettingRV2 *setting = nil;
    if ([name isEqualToString:kSettingFrontLRM])
      setting = FrontLRMSettings;
    else if ([name isEqualToString:kSettingFrontTBM])
      setting = FrontTBMSettings;
    else if ([name isEqualToString:kSettingBackLRM])
      setting = BackLRMSettings;
    else if ([name isEqualToString:kSettingBackTBM])
      setting = BackTBMSettings;
    [setting applyUIConstraint:printSettings];
    [setting getTicket:printSettings];
  }
  [self notifyUI];
}

- (NSDictionary *)getSummaryInfo {
  [self getTicket];
  NSMutableDictionary *summary = [NSMutableDictionary dictionary];
  if (![self checkImagePositionAdjustValid])
    return summary;
  NSString *enabled = stateString(chkEnableImagePositionAdjust);
  NSString *frontLRM = [FrontLRMSettings getValueString];
  NSString *frontTBM = [FrontTBMSettings getValueString];
  NSString *backLRM = [BackLRMSettings getValueString];
  NSString *backTBM = [BackTBMSettings getValueString];
  // While one pair of offsets applies to both sides, its titles name no side; the back's entries
  // stay, on purpose.
  const bool separateBack = [chkEnableImagePositionAdjust state] != 0;
  NSString *frontLRMTitle =
      localizedText(Bundle, separateBack ? [FrontLRMSettings getSummaryInfoName] : kTextLRM);
  NSString *frontTBMTitle =
      localizedText(Bundle, separateBack ? [FrontTBMSettings getSummaryInfoName] : kTextTBM);
  NSString *backLRMTitle = localizedText(Bundle, [BackLRMSettings getSummaryInfoName]);
  NSString *backTBMTitle = localizedText(Bundle, [BackTBMSettings getSummaryInfoName]);

  NSMutableArray *order = [NSMutableArray arrayWithCapacity:5];
  addEntry(summary, order, localizedText(Bundle, kTextEnable), enabled);
  addEntry(summary, order, frontLRMTitle, frontLRM);
  addEntry(summary, order, frontTBMTitle, frontTBM);
  addEntry(summary, order, backLRMTitle, backLRM);
  addEntry(summary, order, backTBMTitle, backTBM);
  [summary setObject:order forKey:kSummaryDisplayOrder];
  return summary;
}

- (void)getEnableImgPstAdjTicket:(PMPrintSettings)printSettings {
  CFTypeRef stored = nullptr;
  const OSStatus status =
      PMPrintSettingsGetValue(printSettings, reinterpret_cast<CFStringRef>(kTicketEnable), &stored);
  if (status != 0) {
    [chkEnableImagePositionAdjust setState:0];
    return;
  }
  id value = static_cast<id>(const_cast<void *>(stored));
  [chkEnableImagePositionAdjust setState:[value isEqual:kTicketTrue] ? 1 : 0];
  NSLog(@"Get Enable Image Position Adjust PrintTicket success.");
}

- (BOOL)getTicket {
  PMPrintSettings printSettings = [PDECallback printSettings];
  if (printSettings != nullptr) {
    [self getEnableImgPstAdjTicket:printSettings];
    [FrontLRMSettings getTicket:printSettings];
    [FrontTBMSettings getTicket:printSettings];
    [BackLRMSettings getTicket:printSettings];
    [BackTBMSettings getTicket:printSettings];
  }
  [self grayUI];
  return printSettings != nullptr;
}

- (void)setEnableImgPstAdjTicket:(PMPrintSettings)printSettings {
  NSString *flag = [chkEnableImagePositionAdjust state] != 0 ? kTicketTrue : kTicketFalse;
  const OSStatus status = PMPrintSettingsSetValue(
      printSettings, reinterpret_cast<CFStringRef>(kTicketEnable), flag, false);
  if (status != 0)
    NSLog(@"Set Enable Image Position Adjust PrintTicket fail.");
}

- (BOOL)saveTicket {
  PMPrintSettings printSettings = [PDECallback printSettings];
  if (printSettings == nullptr)
    return NO;
  [FrontLRMSettings setTicket:printSettings];
  [FrontTBMSettings setTicket:printSettings];
  [BackLRMSettings setTicket:printSettings];
  [BackTBMSettings setTicket:printSettings];
  [self setEnableImgPstAdjTicket:printSettings];
  return YES;
}

@end
