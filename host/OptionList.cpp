#include "host/OptionList.hpp"

#include "host/ForeignText.hpp"

namespace imageposition {

namespace {

/// What -o takes, but for what is nobody else's to read: lists are kept and passed on.
std::string wordFor(const PrinterOption &option, const OptionChoice &choice) {
  const bool isHidden =
      option.custom && option.custom->hasHidden() && isEnteredValue(choice.keyword);
  return isHidden ? kHiddenValue : onOneLine(choice.keyword);
}

/// Also of a value that no window can ask for, since the PPD does not say within which limits.
std::string formFor(const PrinterOption &option) {
  if (option.custom)
    return customValueForm(*option.custom);
  return option.keyword == "PageSize" ? "Custom.WIDTHxHEIGHT" : "Custom.VALUE";
}

} // namespace

std::string writeOptionList(const std::vector<OptionGroup> &groups) {
  std::string list;
  for (const OptionGroup &group : groups) {
    list += onOneLine(group.text) + '\n';
    for (const PrinterOption &option : group.options) {
      list += "  " + option.keyword + ": " + onOneLine(option.text) + '\n';
      for (const OptionChoice &choice : option.choices) {
        list += option.isChosen(choice.keyword) ? "  * " : "    ";
        list += wordFor(option, choice) + ": " + onOneLine(choice.text) + '\n';
      }
      if (option.takesCustomValue)
        list += "    " + formFor(option) + '\n';
    }
  }
  return list;
}

} // namespace imageposition
