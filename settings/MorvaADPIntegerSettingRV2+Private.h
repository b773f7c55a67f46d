/// What the two files of the integer setting share.
#ifndef IMAGEPOSITION_SETTINGS_MORVAADPINTEGERSETTINGRV2_PRIVATE_H
#define IMAGEPOSITION_SETTINGS_MORVAADPINTEGERSETTINGRV2_PRIVATE_H

#import "settings/ConstraintDictionary.h"
#import "settings/MorvaADPIntegerSettingRV2.h"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// A related setting whose answers are known without asking.
struct KnownSetting {
  std::optional<std::string> name;
  const int32_t *value;
};

/// The rules of a setting, and what a walk over them has learnt about the related settings.
struct SettingRules {
  explicit SettingRules(NSDictionary *table) : rules(constraintRules(table)) {}

  std::shared_ptr<const ConstraintRules> rules;
  bool walking = false;
  /// Filled once in a walk, anew after each action, as only actions can change the related
  /// settings.
  std::vector<KnownSetting> known;
  bool allAreKnown = false; ///< Otherwise `known` is not to be used.
  bool knownIsCurrent = false;
};

} // namespace imageposition

#endif
