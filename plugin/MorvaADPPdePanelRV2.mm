#import "MorvaADPPdePanelRV2.h"

#import "Keys.h"
#include "SharedKeys.h"

namespace {

// Returns an equal string that is never deallocated. A bundle need not keep the strings it returns:
// one that it lacks, or that Foundation marks as not translated, may be temporary.
NSString *permanentCopy(NSString *string) {
  static NSMutableSet *const kStrings = [[NSMutableSet alloc] init];
  if (string == nil)
    return nil;
  if ([kStrings member:string] == nil)
    [kStrings addObject:[[string copy] autorelease]];
  return [kStrings member:string];
}

} // namespace

@implementation MorvaADPPdePanelRV2

- (id)initWithCallback:(id<MorvaADPPdeCallbackRV2>)callback Bundle:(NSBundle *)bundle {
  self = [super init];
  if (self == nil)
    return nil;
  if (callback == nil || bundle == nil) {
    [self release];
    return nil;
  }
  PDEName = nil;
  ppd = nullptr;
  PanelShown = NO;
  PDEPluginCallbackObject = [callback retain];
  PDEBundle = [bundle retain];
  SettingItems = [[MorvaADPSettingsCollectorRV2 alloc] initWithCallback:PDEPluginCallbackObject
                                                                 Bundle:PDEBundle];
  if (SettingItems == nil) {
    [self release];
    return nil;
  }
  return self;
}

- (void)dealloc {
  [SettingItems release];
  [supportedOptions release];
  [PDEBundle release];
  [PDEPluginCallbackObject release];
  [super dealloc];
}

- (NSView *)panelView {
  return [SettingItems prepareView];
}

- (NSString *)panelName {
  if (PDEName == nil)
    PDEName = permanentCopy([PDEBundle localizedStringForKey:kTextPluginName value:nil table:nil]);
  return PDEName;
}

- (NSString *)panelKind {
  return @"com.morva.print.pde.ImagePositionRV1";
}

- (NSArray *)supportedPPDOptionKeys {
  if (supportedOptions == nil) {
    supportedOptions = [[NSMutableArray alloc] initWithCapacity:5];
    [supportedOptions addObject:@IPA_KEY_FRONT_LEFT_RIGHT];
    [supportedOptions addObject:@IPA_KEY_FRONT_TOP_BOTTOM];
    [supportedOptions addObject:@IPA_KEY_BACK_LEFT_RIGHT];
    [supportedOptions addObject:@IPA_KEY_BACK_TOP_BOTTOM];
    [supportedOptions addObject:@IPA_OPTION_ADJUST_POSITION];
  }
  NSLog(@"supportedPPDOptionKeys:=NSArray(%@)", supportedOptions);
  return supportedOptions;
}

- (BOOL)shouldShowHelp {
  return YES;
}

- (BOOL)shouldHide {
  return YES;
}

- (BOOL)shouldPrint {
  if (!PanelShown)
    [SettingItems getTicket];
  [SettingItems notifyUI];
  [SettingItems saveTicket];
  return YES;
}

- (void)willShow {
  PanelShown = YES;
  ppd = [PDEPluginCallbackObject ppdFile];
  [SettingItems prepareForShow];
  [SettingItems getTicket];
  [SettingItems saveTicket];
}

- (BOOL)restoreValuesAndReturnError:(NSError **)error {
  (void)error;
  if (PanelShown) {
    [SettingItems getTicket];
    [SettingItems saveTicket];
    [SettingItems getTicket];
  }
  return YES;
}

- (BOOL)saveValuesAndReturnError:(NSError **)error {
  (void)error;
  if (PanelShown) {
    [SettingItems notifyUI];
    [SettingItems saveTicket];
    [SettingItems getTicket];
  }
  return YES;
}

- (NSDictionary *)summaryInfo {
  return [SettingItems getSummaryInfo];
}

@end
