#include "OptionList.hpp"

#include "VisibleText.hpp"

namespace imageposition {

namespace {

/// The value as -o accepts it. Hides secrets, because users save and share such lists.
std::string wordFor(const PrinterOption &option, const OptionChoice &choice) {
  const bool isHidden =
      option.custom && option.custom->hasHidden() && isEnteredValue(choice.keyword);
  return isHidden ? kHiddenValue : visible(choice.keyword);
}

/// Also for a custom value without limits in the PPD, which a window cannot ask for.
std::string formFor(const PrinterOption &option) {
  if (option.custom)
    return customValueForm(*option.custom);
  return withCustomPrefix(option.keyword == "PageSize" ? "WIDTHxHEIGHT" : "VALUE");
}

} // namespace

std::string writeOptionList(const std::vector<OptionGroup> &groups) {
  std::string list;
  for (const OptionGroup &group : groups) {
    list += visible(group.text) + '\n';
    for (const PrinterOption &option : group.options) {
      list += "  " + option.keyword + ": " + visible(option.text) + '\n';
      const ChoiceSet chosen = option.chosenSet();
      for (const OptionChoice &choice : option.choices) {
        list += chosen.count(choice.keyword) != 0 ? "  * " : "    ";
        list += wordFor(option, choice) + ": " + visible(choice.text) + '\n';
      }
      if (option.takesCustomValue)
        list += "    " + formFor(option) + '\n';
    }
  }
  return list;
}

} // namespace imageposition
