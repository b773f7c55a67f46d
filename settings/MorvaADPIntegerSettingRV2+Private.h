/// What the two files of the integer setting share.
#ifndef IMAGEPOSITION_SETTINGS_MORVAADPINTEGERSETTINGRV2_PRIVATE_H
#define IMAGEPOSITION_SETTINGS_MORVAADPINTEGERSETTINGRV2_PRIVATE_H

#import "platform/TextBridge.h"
#import "settings/ConstraintDictionary.h"
#import "settings/ItemConformance.h"
#import "settings/MorvaADPIntegerSettingRV2.h"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// A related setting whose answers are known without asking.
struct KnownSetting {
  const std::optional<std::string> *name;
  const int32_t *value;
};

/// The rules of a setting, and what a walk over them has learnt about the related settings.
struct SettingRules {
  SettingRules(NSDictionary *table, NSString *settingName)
      : rules(constraintRules(table)), name(toOptionalText(settingName)) {}

  std::shared_ptr<const ConstraintRules> rules;
  /// The setting's name, which it keeps for its life.
  std::optional<std::string> name;
  bool walking = false;
  /// Filled once in a walk, and anew after each action that reaches the view items: nothing else
  /// runs code that could change the related settings.
  std::vector<KnownSetting> known;
  bool allAreKnown = false; ///< Otherwise `known` is not to be used.
  bool knownIsCurrent = false;
};

/// What the setting has in C++.
struct IntegerSettingParts {
  IntegerSettingParts(NSDictionary *table, NSString *settingName) : rules(table, settingName) {}

  SettingRules rules;
  ItemConformance conformance;
};

} // namespace imageposition

#endif
