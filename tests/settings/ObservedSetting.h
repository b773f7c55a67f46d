/// An integer setting whose class overrides every operation, for tests of who hears what.
#ifndef IMAGEPOSITION_TESTS_SETTINGS_OBSERVEDSETTING_H
#define IMAGEPOSITION_TESTS_SETTINGS_OBSERVEDSETTING_H

#import "MorvaADPIntegerSettingRV2.h"

#include "Journal.hpp"

#include <functional>
#include <optional>
#include <set>
#include <string>

namespace imageposition::test {

/// What an observed setting does besides what its base does.
struct Observation {
  /// Gets "NAME.setTicket:", "NAME.setStringValue:5", "NAME.checkUIConstraintCondition:" with the
  /// rule's "ActionValue", and so on; null for nothing.
  Journal *journal = nullptr;
  std::string name;
  /// Whether `getSettingName` and `getValueString` stand in the journal as well.
  bool recordsQuestions = false;
  /// Called with each recorded operation, without the name, before the base's.
  std::function<void(const std::string &)> onOperation;
  /// Operations ("setTicket:") that the class does not hand on to its base.
  std::set<std::string> swallowed;
  /// What the operations answer in place of what their base does.
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
