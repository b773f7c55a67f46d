/// Rule tables and rules as the dictionaries they are, with their typed form at hand.
#ifndef IMAGEPOSITION_SETTINGS_CONSTRAINTDICTIONARY_H
#define IMAGEPOSITION_SETTINGS_CONSTRAINTDICTIONARY_H

#import <Foundation/Foundation.h>

#include "settings/ConstraintTable.hpp"

#include <memory>
#include <vector>

namespace imageposition {

/// The typed rules of one rule table, and the dictionaries that stand for them in messages.
class ConstraintRules {
public:
  /// Reads the rules under "0", "1", ... while the index is below the number of entries. What is
  /// not a dictionary there counts as absent.
  explicit ConstraintRules(NSDictionary *table);
  ~ConstraintRules();
  ConstraintRules(const ConstraintRules &) = delete;
  ConstraintRules &operator=(const ConstraintRules &) = delete;

  const ConstraintTable &table() const { return table_; }
  /// The rule's dictionary: equal to the one in the table, and found typed by `typedRule`.
  NSDictionary *dictionary(ConstraintTable::Position position) const;

private:
  ConstraintTable table_;
  std::vector<NSDictionary *> dictionaries_;
};

/// The rules of a table that a `MorvaADPConstraintTable` holds already, or else read now.
std::shared_ptr<const ConstraintRules> constraintRules(NSDictionary *table);

/// A rule's texts; entries that are not texts count as absent.
RuleTexts ruleTexts(NSDictionary *rule);

/// The typed form that a dictionary from `ConstraintRules` carries; null for any other dictionary.
const ConstraintRule *typedRule(NSDictionary *rule);

} // namespace imageposition

/// A rule table that was read into typed rules once, for all settings that share it.
@interface MorvaADPConstraintTable : NSDictionary {
  NSDictionary *Entries;
  void *Rules;
}
/// Null for null. The entries are copied.
+ (MorvaADPConstraintTable *)tableWithDictionary:(NSDictionary *)entries;
@end

#endif
