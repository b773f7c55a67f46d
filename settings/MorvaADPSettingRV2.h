/// The base of every setting of the panel.
#ifndef IMAGEPOSITION_SETTINGS_MORVAADPSETTINGRV2_H
#define IMAGEPOSITION_SETTINGS_MORVAADPSETTINGRV2_H

#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

#include <cups/ppd.h>

/// One value of the panel that a person sets: bound to one entry of the job's print settings, to
/// the view items that show it, to the panel's other settings and to the constraint rules.
///
/// The base has no value. Its value and rule operations do nothing, so that every setting answers
/// them. Main thread only.
@interface MorvaADPSettingRV2 : NSObject {
  NSString *TicketKey; ///< Key of the value in the print settings; the definition record's.
  NSDictionary *ConstraintInfo;   ///< The whole rule table; retained.
  NSArray *RelatedSettings;       ///< All settings of the panel; the controller's.
  NSMutableArray *HandlingTarget; ///< The items that show the setting; owned, with its elements.
  NSString *SettingName;          ///< The definition record's.
  NSString *SummaryName;          ///< The definition record's.
  NSString *ValueRangeLabelLocalizeKey; ///< Key of the range label's template.
  NSString *MaxValueRangeLabelKey;      ///< What stands for the maximum in that template.
  NSString *MinValueRangeLabelKey;      ///< What stands for the minimum in that template.
  ppd_file_t *PPD;                      ///< The printer's description; the host's.
  NSBundle *BundleInfo;                 ///< The plug-in's bundle; retained.
}

/// `record` is one entry of "SettingInfo", whose owner keeps it alive, or null for a setting that
/// is named "UIItemCollector". Entries of it that are not texts count as absent. Answers null
/// without a rule table, a bundle or a printer description.
- (id)initWithSettingInfo:(NSDictionary *)record
           ConstraintInfo:(NSDictionary *)rules
               BundleInfo:(NSBundle *)bundle
                      PPD:(ppd_file_t *)ppd;

/// Binds the setting: `settings` is kept without a reference, `items` is copied into the setting's
/// own list, in place of what that held.
- (void)setRelatedSettings:(NSArray *)settings HandlingTarget:(NSArray *)items;

/// Takes the value from the view, shows it and writes it to the print settings. Empty here.
- (void)checkUI:(PMPrintSettings)printSettings;
/// Reads the value from the print settings. Empty here.
- (void)getTicket:(PMPrintSettings)printSettings;
/// Writes the value to the print settings. Empty here.
- (void)setTicket:(PMPrintSettings)printSettings;

/// Passes the flag to every item that can be made unusable.
- (void)setViewState:(BOOL)available;
/// The same for the items with that view tag only.
- (void)setViewStateByTag:(BOOL)available TagInfo:(int32_t)tag;

/// Brings the value into its range. Empty here.
- (void)checkValue;
/// The value as text; none here.
- (NSString *)getValueString;
- (NSString *)getSettingName;
/// The localization key of the value's title in the print dialog's summary.
- (NSString *)getSummaryInfoName;

/// Carries out the rules that act on this setting. Empty here.
- (void)applyUIConstraint:(PMPrintSettings)printSettings;
/// Whether a rule's condition holds; false here.
- (BOOL)checkUIConstraintCondition:(NSDictionary *)rule;

@end

#endif
