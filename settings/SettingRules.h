/// A rule table as a setting keeps it: read once into typed rules.
#ifndef IMAGEPOSITION_SETTINGS_SETTINGRULES_H
#define IMAGEPOSITION_SETTINGS_SETTINGRULES_H

#import <Foundation/Foundation.h>

#include "ConstraintRule.hpp"

#include <string>
#include <unordered_map>
#include <vector>

namespace imageposition {

/// A rule in typed form, for as long as its dictionary lives.
struct SettingRule {
  NSDictionary *dictionary;
  NSString *conditionObj; ///< The dictionary's; null when it has no such string.
  Condition condition;
  Action action;
};

/// Entries that are not strings count as absent. A null rule is one that never holds.
SettingRule typedRule(NSDictionary *rule);

/// Does not change after construction, whatever becomes of the table.
class SettingRules {
public:
  explicit SettingRules(NSDictionary *table);
  ~SettingRules();
  SettingRules(const SettingRules &) = delete;
  SettingRules &operator=(const SettingRules &) = delete;

  /// The rules that act on the setting of that name, in index order: of those under "0", "1", ...
  /// while the index is below the table's number of entries. None for null.
  std::vector<const SettingRule *> actingOn(NSString *settingName) const;

  /// Null for a dictionary that is not one of the table's.
  const SettingRule *find(NSDictionary *dictionary) const;

private:
  NSDictionary *table_; // a copy, which keeps the rules' dictionaries
  std::unordered_map<NSDictionary *, SettingRule> rules_;
  std::unordered_map<std::string, std::vector<const SettingRule *>> byActionObj_;
};

} // namespace imageposition

#endif
