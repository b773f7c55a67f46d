/// The keys and names that the code shares with the bundle's definitions and the print settings.
#ifndef IMAGEPOSITION_SETTINGS_KEYS_H
#define IMAGEPOSITION_SETTINGS_KEYS_H

#import <Foundation/Foundation.h>

#include "SharedKeys.h"

// The four settings; each name is also the localization key of the setting's name label.
static NSString *const kSettingFrontLRM = @"FrontLRM";
static NSString *const kSettingFrontTBM = @"FrontTBM";
static NSString *const kSettingBackLRM = @"BackLRM";
static NSString *const kSettingBackTBM = @"BackTBM";

// The keys of a definition record in "SettingInfo".
static NSString *const kRecordTicketKey = @"TicketKey";
static NSString *const kRecordSettingName = @"SettingName";
static NSString *const kRecordSummaryInfoName = @"SummaryInfoName";
static NSString *const kRecordRange = @"Range";
static NSString *const kRecordRangeLabelWording = @"RangeLabelWording";
static NSString *const kRecordDefaultValue = @"DefaultValue";

// The keys of a rule in "ConstraintInfo".
static NSString *const kRuleConditionObj = @"ConditionObj";
static NSString *const kRuleConditionType = @"ConditionType";
static NSString *const kRuleConditionPattern = @"ConditionPattern";
static NSString *const kRuleConditionValue = @"ConditionValue";
static NSString *const kRuleActionObj = @"ActionObj";
static NSString *const kRuleActionPattern = @"ActionPattern";
static NSString *const kRuleActionValue = @"ActionValue";

// The bundle's resources.
static NSString *const kResourceSettingInfo = @"SettingInfo";
static NSString *const kResourceConstraintInfo = @"ConstraintInfo";
static NSString *const kResourceInterfaceFile = @"ImagePositionAdjustPrint";

// Localization keys besides the settings' names.
static NSString *const kTextPluginName = @"PluginName";
static NSString *const kTextEnable = @"EnableImgPstAdj";
static NSString *const kTextRestoreDefaults = @"RestoreDefaults";
static NSString *const kTextLRM = @"LRM";
static NSString *const kTextTBM = @"TBM";

// The enable flag in the print settings.
static NSString *const kTicketEnable = @IPA_KEY_ENABLE;
static NSString *const kTicketTrue = @IPA_VALUE_TRUE;
static NSString *const kTicketFalse = @IPA_VALUE_FALSE;

/// The key under which a summary lists its other keys in display order; the print dialog's.
static NSString *const kSummaryDisplayOrder = @IPA_SUMMARY_ORDER;

#endif
