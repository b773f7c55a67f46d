/// A setting's rule table, parsed once into typed rules.
#ifndef IMAGEPOSITION_SETTINGS_SETTINGRULES_H
#define IMAGEPOSITION_SETTINGS_SETTINGRULES_H

#import <Foundation/Foundation.h>

#include "ConstraintRule.hpp"

#include <string>
#include <unordered_map>
#include <vector>

namespace imageposition {

/// A rule in typed form; valid while its dictionary lives.
struct SettingRule {
  NSDictionary *dictionary;
  NSString *conditionObj; ///< Owned by the dictionary; null if it has no such string.
  Condition condition;
  Action action;
};

/// Entries that are not strings count as absent. A null rule never holds.
SettingRule typedRule(NSDictionary *rule);

/// Immutable: later changes of the table have no effect.
class SettingRules {
public:
  explicit SettingRules(NSDictionary *table);
  ~SettingRules();
  SettingRules(const SettingRules &) = delete;
  SettingRules &operator=(const SettingRules &) = delete;

  /// The rules that act on the named setting, in index order. The table's rules are its entries
  /// "0", "1", ... with an index below its number of entries. Empty for a null name.
  std::vector<const SettingRule *> actingOn(NSString *settingName) const;

  /// Null if the dictionary is not in the table.
  const SettingRule *find(NSDictionary *dictionary) const;

private:
  NSDictionary *table_; // a copy, which keeps the rules' dictionaries alive
  std::unordered_map<NSDictionary *, SettingRule> rules_;
  std::unordered_map<std::string, std::vector<const SettingRule *>> byActionObj_;
};

} // namespace imageposition

#endif
