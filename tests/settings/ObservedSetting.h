/// An integer setting whose class overrides every method, to test which ones are called.
#ifndef IMAGEPOSITION_TESTS_SETTINGS_OBSERVEDSETTING_H
#define IMAGEPOSITION_TESTS_SETTINGS_OBSERVEDSETTING_H

#import "MorvaADPIntegerSettingRV2.h"

#include "Journal.hpp"

#include <functional>
#include <optional>
#include <set>
#include <string>

namespace imageposition::test {

/// What an observed setting does in addition to its base.
struct Observation {
  /// Receives "NAME.setTicket:", "NAME.setStringValue:5", "NAME.checkUIConstraintCondition:" with
  /// the rule's "ActionValue", and so on; may be null.
  Journal *journal = nullptr;
  std::string name;
  /// Whether to record `getSettingName` and `getValueString` as well.
  bool recordsGetters = false;
  /// Called with each recorded method, without the name, before the base's method.
  std::function<void(const std::string &)> onOperation;
  /// Methods ("setTicket:") that the class does not pass on to its base.
  std::set<std::string> suppressed;
  /// Results that replace the base's.
  std::optional<bool> condition;
  std::optional<std::string> settingName;
  std::optional<std::string> valueString;
  bool hasNoValueString = false;
};

} // namespace imageposition::test

@interface ObservedSetting : MorvaADPIntegerSettingRV2 {
  void *observation; ///< Used by the function below.
}
@end

namespace imageposition::test {

Observation &observe(ObservedSetting *setting);

} // namespace imageposition::test

#endif
