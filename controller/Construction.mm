#import "MorvaADPSettingsCollectorRV2.h"

#import "Keys.h"
#import "PropertyValues.h"
#import "ResourceLoading.h"

#include <initializer_list>

using imageposition::integerString;
using imageposition::stringEntry;

NSString *const CBSCKeyInstancePointer = @"InstancePointer";
NSString *const CBSCKeySettingName = @"SettingName";

namespace {

// Null if the bundle lacks the file, or if it is not a dictionary.
NSDictionary *definitions(NSBundle *bundle, NSString *name) {
  return imageposition::dictionaryAtPath([bundle pathForResource:name ofType:@"plist"]);
}

NSDictionary *registryEntry(NSString *name, MorvaADPIntegerSettingRV2 **field) {
  return [NSDictionary dictionaryWithObjectsAndKeys:name, CBSCKeySettingName,
                                                    [NSValue valueWithPointer:field],
                                                    CBSCKeyInstancePointer, nil];
}

// The controller's field for the setting of that name; null for an unknown name.
MorvaADPIntegerSettingRV2 **fieldForName(NSArray *registry, NSString *name) {
  NSEnumerator *entries = [registry objectEnumerator];
  for (NSDictionary *entry = [entries nextObject]; entry != nil; entry = [entries nextObject]) {
    if ([[entry objectForKey:CBSCKeySettingName] isEqualToString:name])
      return static_cast<MorvaADPIntegerSettingRV2 **>(
          [[entry objectForKey:CBSCKeyInstancePointer] pointerValue]);
  }
  return nullptr;
}

// Leaves out items that an incomplete interface file does not connect.
NSArray *connectedItems(id entryField, id stepper, id nameLabel, id rangeLabel) {
  NSMutableArray *items = [NSMutableArray arrayWithCapacity:4];
  for (id item : {entryField, stepper, nameLabel, rangeLabel}) {
    if (item != nil)
      [items addObject:item];
  }
  return items;
}

// A damaged interface file may connect an object of the wrong class. Clearing such outlets once
// saves every refresh from checking, or raising.
template <typename... Items> void clearUnless(Class type, Items *&...outlets) {
  ((outlets = [outlets isKindOfClass:type] ? outlets : nil), ...);
}

} // namespace

@implementation MorvaADPSettingsCollectorRV2

- (id)initWithCallback:(id<MorvaADPPdeCallbackRV2>)callback Bundle:(NSBundle *)bundle {
  self = [super init];
  if (self == nil)
    return nil;
  if (callback == nil || bundle == nil) {
    [self release];
    return nil;
  }
  PDECallback = [callback retain];
  Bundle = [bundle retain];
  ConstraintInfoDictionary = [definitions(bundle, kResourceConstraintInfo) retain];
  SettingInfoDictionary = [definitions(bundle, kResourceSettingInfo) retain];
  ppd = [PDECallback ppdFile];

  NSArray *registry =
      [NSArray arrayWithObjects:registryEntry(kSettingFrontLRM, &FrontLRMSettings),
                                registryEntry(kSettingFrontTBM, &FrontTBMSettings),
                                registryEntry(kSettingBackLRM, &BackLRMSettings),
                                registryEntry(kSettingBackTBM, &BackTBMSettings), nil];
  for (NSUInteger index = 0; index < [SettingInfoDictionary count]; ++index) {
    NSDictionary *record =
        [SettingInfoDictionary objectForKey:integerString(static_cast<int32_t>(index))];
    MorvaADPIntegerSettingRV2 **field =
        fieldForName(registry, stringEntry(record, kRecordSettingName));
    if (field == nullptr)
      continue;
    // A second definition of the same name replaces the setting; the earlier one is not released,
    // on purpose.
    *field = [[MorvaADPIntegerSettingRV2 alloc] initWithSettingInfo:record
                                                     ConstraintInfo:ConstraintInfoDictionary
                                                         BundleInfo:Bundle
                                                                PPD:ppd];
    if (*field == nil) {
      [self release];
      return nil;
    }
  }

  // The first missing setting ends the list, on purpose.
  SettingsList = [[NSArray alloc]
      initWithObjects:FrontLRMSettings, FrontTBMSettings, BackLRMSettings, BackTBMSettings, nil];
  if (ConstraintInfoDictionary == nil || SettingInfoDictionary == nil || SettingsList == nil) {
    [self release];
    return nil;
  }
  [self grayUI];
  return self;
}

- (void)dealloc {
  [FrontLRMSettings release];
  [FrontTBMSettings release];
  [BackLRMSettings release];
  [BackTBMSettings release];
  [SettingInfoDictionary release];
  [ConstraintInfoDictionary release];
  [SettingsList release];
  [PDECallback release];
  [Bundle release];
  // The dialog may still hold the view.
  imageposition::disconnectActions(LoadedView, self);
  [LoadedView release];
  [super dealloc];
}

- (NSView *)prepareView {
  if (ImagePositionPrintView != nil)
    return ImagePositionPrintView;
  const bool loaded = imageposition::loadInterfaceFile(kResourceInterfaceFile, self);
  clearUnless([NSView class], ImagePositionPrintView);
  clearUnless([NSButton class], chkEnableImagePositionAdjust, btnRestore2Defalut);
  clearUnless([NSTextField class], FrontLRMText, FrontTBMText, BackLRMText, BackTBMText);
  clearUnless([NSControl class], FrontLRMStepper, FrontTBMStepper, BackLRMStepper, BackTBMStepper);
  clearUnless([NSTextField class], FrontLRMLabel, FrontTBMLabel, BackLRMLabel, BackTBMLabel);
  clearUnless([NSTextField class], FrontLRMRangeLabel, FrontTBMRangeLabel, BackLRMRangeLabel,
              BackTBMRangeLabel);
  // The loader of an interface file owns its top-level objects; a superview owns its subviews.
  const bool isTopLevel = loaded && [ImagePositionPrintView superview] == nil;
  LoadedView = isTopLevel ? ImagePositionPrintView : [ImagePositionPrintView retain];
  [self CBSCInitializeView];
  return ImagePositionPrintView;
}

- (void)CBSCInitializeView {
  [FrontLRMSettings setRelatedSettings:SettingsList
                        HandlingTarget:connectedItems(FrontLRMText, FrontLRMStepper, FrontLRMLabel,
                                                      FrontLRMRangeLabel)];
  [FrontTBMSettings setRelatedSettings:SettingsList
                        HandlingTarget:connectedItems(FrontTBMText, FrontTBMStepper, FrontTBMLabel,
                                                      FrontTBMRangeLabel)];
  [BackLRMSettings setRelatedSettings:SettingsList
                       HandlingTarget:connectedItems(BackLRMText, BackLRMStepper, BackLRMLabel,
                                                     BackLRMRangeLabel)];
  [BackTBMSettings setRelatedSettings:SettingsList
                       HandlingTarget:connectedItems(BackTBMText, BackTBMStepper, BackTBMLabel,
                                                     BackTBMRangeLabel)];
}

@end
