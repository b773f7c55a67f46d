/// The rules of a rule table, found by the setting that they act on.
#ifndef IMAGEPOSITION_SETTINGS_CONSTRAINTTABLE_HPP
#define IMAGEPOSITION_SETTINGS_CONSTRAINTTABLE_HPP

#include "settings/ConstraintRule.hpp"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace imageposition {

/// Filled once, in index order, and then only read.
class ConstraintTable {
public:
  using Position = std::size_t;

  /// Adds the rule of the next index. One that acts on no setting is kept, but never found.
  Position append(const RuleTexts &texts);

  const ConstraintRule &operator[](Position position) const { return rules_[position]; }
  std::size_t size() const noexcept { return rules_.size(); }

  /// The positions of the rules that act on the setting of that name, in index order.
  const std::vector<Position> &rulesActingOn(const std::string &settingName) const;

private:
  std::vector<ConstraintRule> rules_;
  std::unordered_map<std::string, std::vector<Position>> byActionObj_;
};

} // namespace imageposition

#endif
