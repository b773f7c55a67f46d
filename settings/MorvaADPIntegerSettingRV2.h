/// A setting whose value is an integer.
#ifndef IMAGEPOSITION_SETTINGS_MORVAADPINTEGERSETTINGRV2_H
#define IMAGEPOSITION_SETTINGS_MORVAADPINTEGERSETTINGRV2_H

#import "MorvaADPSettingRV2.h"

namespace imageposition {
class SettingRules;
}

/// A 32-bit signed value with a range and a default. The user types it into an entry field or
/// changes it with a stepper; a name label and a range label describe it. Its value string is the
/// value formatted with "%d".
@interface MorvaADPIntegerSettingRV2 : MorvaADPSettingRV2 {
  int32_t Value;
  int32_t Max; ///< May be below `Min`; `checkValue` says what happens then.
  int32_t Min;
  int32_t Default;
  NSArray *RangeLabelInfoList;        ///< Owned; its elements are the base's three label keys.
  imageposition::SettingRules *Rules; ///< Owned.
}

/// As the base, but also returns null without a record. "Range" is "minimum:maximum" (absent: 0 to
/// 0), "RangeLabelWording" is "minimum placeholder:maximum placeholder:template key", and
/// "DefaultValue" is a string or a number (absent: 0), which is not clamped. Logs a "Range" without
/// ":" or a wording of fewer than three parts, and returns null.
- (id)initWithSettingInfo:(NSDictionary *)record
           ConstraintInfo:(NSDictionary *)rules
               BundleInfo:(NSBundle *)bundle
                      PPD:(ppd_file_t *)ppd;

/// As the base, then passes the range to every item that takes one. This happens only here: the
/// entry field does not receive a range that a rule sets later.
- (void)setRelatedSettings:(NSArray *)settings HandlingTarget:(NSArray *)items;

/// Takes the entry field's number if it differs from the value, adds the stepper's steps (wrapping
/// at 32 bits) and updates the labels, then calls `setTicket:` and `getTicket:`.
- (void)checkUI:(PMPrintSettings)printSettings;
/// Clamps and writes the value; calls `getTicket:` if the write fails.
- (void)setTicket:(PMPrintSettings)printSettings;
/// False first resets the value to the default. Then as the base.
- (void)setViewState:(BOOL)available;
/// Reads the stored value, or takes the default if there is none, then clamps and shows it. Without
/// an entry field the value is not clamped.
- (void)getTicket:(PMPrintSettings)printSettings;
/// A new, autoreleased string.
- (NSString *)getValueString;
/// Reads the string as an integer (null as 0), then sets, clamps and shows the value.
- (void)setStringValue:(NSString *)text;
/// Sets, clamps and shows the value.
- (void)setIntValue:(int32_t)value;
/// Clamps the value: above `Max` it becomes `Max`, otherwise below `Min` it becomes `Min`. Does not
/// update the view.
- (void)checkValue;
/// Changes the default, not the value.
- (void)setDefault:(int32_t)value;
- (int32_t)getValue;

@end

@interface MorvaADPIntegerSettingRV2 (Constraint)

/// Applies every rule of this setting whose condition holds, in the order of their indexes.
- (void)applyUIConstraint:(PMPrintSettings)printSettings;
/// Reads the names and values of the related settings, or the printer's attributes.
- (BOOL)checkUIConstraintCondition:(NSDictionary *)rule;

@end

#endif
