#include "settings/ConstraintTable.hpp"

namespace imageposition {

ConstraintTable::Position ConstraintTable::append(const RuleTexts &texts) {
  const Position position = rules_.size();
  rules_.push_back(ConstraintRule::fromTexts(texts));
  if (texts.actionObj)
    byActionObj_[*texts.actionObj].push_back(position);
  return position;
}

const std::vector<ConstraintTable::Position> &
ConstraintTable::rulesActingOn(const std::string &settingName) const {
  static const std::vector<Position> kNone;
  const auto found = byActionObj_.find(settingName);
  return found == byActionObj_.end() ? kNone : found->second;
}

} // namespace imageposition
