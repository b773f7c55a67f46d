#include "OptionLimit.hpp"

#include <algorithm>

namespace imageposition {

std::size_t cutToRows(std::vector<OptionGroup> &groups, std::size_t most) {
  std::size_t room = most;
  std::size_t leftOut = 0;
  const auto hasNoRoom = [&](const PrinterOption &option) {
    const std::size_t rows =
        option.kind == PrinterOption::Kind::Several ? option.choices.size() : 1;
    if (rows > room) {
      leftOut++;
      return true;
    }
    room -= rows;
    return false;
  };
  for (OptionGroup &group : groups) {
    std::vector<PrinterOption> kept;
    for (PrinterOption &option : group.options)
      if (!hasNoRoom(option))
        kept.push_back(std::move(option));
    group.options = std::move(kept);
  }
  groups.erase(std::remove_if(groups.begin(), groups.end(),
                              [](const OptionGroup &group) { return group.options.empty(); }),
               groups.end());
  return leftOut;
}

} // namespace imageposition
