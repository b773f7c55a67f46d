/// The base class of the panel's settings.
#ifndef IMAGEPOSITION_SETTINGS_MORVAADPSETTINGRV2_H
#define IMAGEPOSITION_SETTINGS_MORVAADPSETTINGRV2_H

#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

#include <cups/ppd.h>

/// One value that the user sets in the panel. It is bound to an entry of the job's print settings,
/// to the view items that show it, to the panel's other settings and to the constraint rules.
///
/// The base has no value; its value and rule methods do nothing. Main thread only.
@interface MorvaADPSettingRV2 : NSObject {
  NSString *TicketKey;          ///< The value's key in the print settings; the definition record's.
  NSDictionary *ConstraintInfo; ///< The whole rule table; retained.
  NSArray *RelatedSettings;     ///< All settings of the panel; the controller's.
  NSMutableArray *HandlingTarget;       ///< The items that show the setting; owned, with the items.
  NSString *SettingName;                ///< The definition record's.
  NSString *SummaryName;                ///< The definition record's.
  NSString *ValueRangeLabelLocalizeKey; ///< The localization key of the range label's template.
  NSString *MaxValueRangeLabelKey;      ///< The placeholder for the maximum in that template.
  NSString *MinValueRangeLabelKey;      ///< The placeholder for the minimum in that template.
  ppd_file_t *PPD;                      ///< The printer's PPD; the dialog's.
  NSBundle *BundleInfo;                 ///< The plug-in's bundle; retained.
}

/// `record` is one entry of "SettingInfo", which the caller keeps alive; null makes a setting named
/// "UIItemCollector". Entries that are not strings count as absent. Returns null without a rule
/// table, a bundle or a PPD.
- (id)initWithSettingInfo:(NSDictionary *)record
           ConstraintInfo:(NSDictionary *)rules
               BundleInfo:(NSBundle *)bundle
                      PPD:(ppd_file_t *)ppd;

/// Binds the setting to all settings (not retained) and to the items, which replace the former
/// ones.
- (void)setRelatedSettings:(NSArray *)settings HandlingTarget:(NSArray *)items;

/// Takes the value from the view, shows it and writes it to the print settings. Does nothing here.
- (void)checkUI:(PMPrintSettings)printSettings;
/// Reads the value from the print settings. Does nothing here.
- (void)getTicket:(PMPrintSettings)printSettings;
/// Writes the value to the print settings. Does nothing here.
- (void)setTicket:(PMPrintSettings)printSettings;

/// Enables or disables every item that conforms to `ViewAvailableInterface`.
- (void)setViewState:(BOOL)available;
/// The same for the items with that view tag only.
- (void)setViewStateByTag:(BOOL)available TagInfo:(int32_t)tag;

/// Clamps the value to its range. Does nothing here.
- (void)checkValue;
/// The value as a string; null here.
- (NSString *)getValueString;
- (NSString *)getSettingName;
/// The localization key of the value's title in the print dialog's summary.
- (NSString *)getSummaryInfoName;

/// Applies the rules that act on this setting. Does nothing here.
- (void)applyUIConstraint:(PMPrintSettings)printSettings;
/// Whether a rule's condition holds; false here.
- (BOOL)checkUIConstraintCondition:(NSDictionary *)rule;

@end

#endif
