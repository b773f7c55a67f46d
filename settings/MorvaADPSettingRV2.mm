#import "MorvaADPSettingRV2.h"

#import "Keys.h"
#import "MorvaADPItemProtocols.h"
#import "PropertyValues.h"

#import <AppKit/AppKit.h>

using imageposition::stringEntry;

@implementation MorvaADPSettingRV2

- (id)initWithSettingInfo:(NSDictionary *)record
           ConstraintInfo:(NSDictionary *)rules
               BundleInfo:(NSBundle *)bundle
                      PPD:(ppd_file_t *)ppd {
  self = [super init];
  if (self == nil)
    return nil;
  if (rules == nil || bundle == nil || ppd == nullptr) {
    [self release];
    return nil;
  }
  ConstraintInfo = [rules retain];
  BundleInfo = [bundle retain];
  PPD = ppd;
  if (record != nil) {
    TicketKey = stringEntry(record, kRecordTicketKey);
    SettingName = stringEntry(record, kRecordSettingName);
    SummaryName = stringEntry(record, kRecordSummaryInfoName);
  } else {
    SettingName = @"UIItemCollector";
  }
  HandlingTarget = [[NSMutableArray alloc] initWithCapacity:0];
  return self;
}

- (void)dealloc {
  [ConstraintInfo release];
  [BundleInfo release];
  [HandlingTarget release];
  [super dealloc];
}

- (void)setRelatedSettings:(NSArray *)settings HandlingTarget:(NSArray *)items {
  RelatedSettings = settings;
  [HandlingTarget setArray:items];
}

- (void)checkUI:(PMPrintSettings)printSettings {
  (void)printSettings;
}

- (void)getTicket:(PMPrintSettings)printSettings {
  (void)printSettings;
}

- (void)setTicket:(PMPrintSettings)printSettings {
  (void)printSettings;
}

- (void)setViewState:(BOOL)available {
  // Not a fast enumeration: an item may change the list.
  for (NSUInteger index = 0; index < [HandlingTarget count]; ++index) {
    id item = [HandlingTarget objectAtIndex:index];
    if ([item conformsToProtocol:@protocol(ViewAvailableInterface)])
      [item setViewAvailable:available];
  }
}

- (void)setViewStateByTag:(BOOL)available TagInfo:(int32_t)tag {
  for (NSUInteger index = 0; index < [HandlingTarget count]; ++index) {
    id item = [HandlingTarget objectAtIndex:index];
    if ([item conformsToProtocol:@protocol(ViewAvailableInterface)] &&
        [item tag] == static_cast<NSInteger>(tag))
      [item setViewAvailable:available];
  }
}

- (void)checkValue {
}

- (NSString *)getValueString {
  return nil;
}

- (NSString *)getSettingName {
  return SettingName;
}

- (NSString *)getSummaryInfoName {
  return SummaryName;
}

- (void)applyUIConstraint:(PMPrintSettings)printSettings {
  (void)printSettings;
}

- (BOOL)checkUIConstraintCondition:(NSDictionary *)rule {
  (void)rule;
  return NO;
}

@end
