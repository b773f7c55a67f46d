/// A setting whose value is a whole number.
#ifndef IMAGEPOSITION_SETTINGS_MORVAADPINTEGERSETTINGRV2_H
#define IMAGEPOSITION_SETTINGS_MORVAADPINTEGERSETTINGRV2_H

#import "MorvaADPSettingRV2.h"

namespace imageposition {
class SettingRules;
}

/// A 32-bit signed value with a range and a default, typed into an entry field, moved by a stepper,
/// described by a name label and a range label. As text it is always what "%d" makes of it.
@interface MorvaADPIntegerSettingRV2 : MorvaADPSettingRV2 {
  int32_t Value;
  int32_t Max; ///< May be below `Min`; `checkValue` says what happens then.
  int32_t Min;
  int32_t Default;
  NSArray *RangeLabelInfoList;        ///< Owned; the three label keys of the base are its elements.
  imageposition::SettingRules *Rules; ///< Owned.
}

/// As the base, and null without a record. "Range" is "minimum:maximum" (absent: 0 to 0),
/// "RangeLabelWording" "minimum mark:maximum mark:template key", "DefaultValue" a text or a number
/// (absent: 0) that is not clamped. A "Range" without ":" and a wording of fewer than three parts
/// are logged, and the answer is null.
- (id)initWithSettingInfo:(NSDictionary *)record
           ConstraintInfo:(NSDictionary *)rules
               BundleInfo:(NSBundle *)bundle
                      PPD:(ppd_file_t *)ppd;

/// As the base, then tells the range to every item that wants it. That is the only time: a range
/// that a rule changes later does not reach the entry field.
- (void)setRelatedSettings:(NSArray *)settings HandlingTarget:(NSArray *)items;

/// The entry field's number, if it differs from the value, plus the stepper's steps (wrapping at 32
/// bits) become the value; the labels get their texts; then `setTicket:` and `getTicket:`.
- (void)checkUI:(PMPrintSettings)printSettings;
/// Clamps and writes the value; a write that fails is followed by `getTicket:`.
- (void)setTicket:(PMPrintSettings)printSettings;
/// False first sets the value back to the default. Then as the base.
- (void)setViewState:(BOOL)available;
/// Takes the stored value, or the default where none can be read, and shows it clamped. Without an
/// entry field the value stays as it was read.
- (void)getTicket:(PMPrintSettings)printSettings;
/// A new text.
- (NSString *)getValueString;
/// Sets, clamps and shows the value; text is read as an integer, null reads 0.
- (void)setStringValue:(NSString *)text;
/// Sets, clamps and shows the value.
- (void)setIntValue:(int32_t)value;
/// Above `Max` the value becomes `Max`, otherwise below `Min` it becomes `Min`. Shows nothing.
- (void)checkValue;
/// Changes the default only.
- (void)setDefault:(int32_t)value;
- (int32_t)getValue;

@end

@interface MorvaADPIntegerSettingRV2 (Constraint)

/// Visits this setting's rules in the order of their indexes, each whether or not earlier ones
/// held.
- (void)applyUIConstraint:(PMPrintSettings)printSettings;
/// The related settings are asked for their names and values; the printer for its attributes.
- (BOOL)checkUIConstraintCondition:(NSDictionary *)rule;

@end

#endif
