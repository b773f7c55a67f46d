#include "PanelValues.hpp"

#include "CustomValue.hpp"
#include "NumberText.hpp"
#include "SharedKeys.h"
#include "Strings.hpp"

namespace imageposition {

std::optional<bool> readBoolean(std::string_view value) {
  for (const char *word : {"true", "yes", "on", "1"})
    if (isSame(value, word))
      return true;
  for (const char *word : {"false", "no", "off", "0"})
    if (isSame(value, word))
      return false;
  return std::nullopt;
}

PrintSettingsStore panelDefaults(const PrinterDescription &printer,
                                 const std::vector<std::string> &keywords) {
  PrintSettingsStore defaults;
  for (const std::string &keyword : keywords) {
    const char *value = printer.queueDefaults().get(keyword);
    const ppd_option_t *const option = ppdFindOption(printer.ppd(), keyword.c_str());
    if (value == nullptr && option != nullptr)
      value = option->defchoice;
    if (value == nullptr)
      continue;
    defaults.set(keyword, value);
    makePlainNumber(printer.ppd(), keyword, defaults);
    const std::string number = defaults.get(keyword);
    if (!isWholeNumber(number) || isSameNumber(number, "0"))
      defaults.remove(keyword);
  }
  return defaults;
}

void makePanelValues(ppd_file_t *ppd, const std::vector<std::string> &keywords,
                     PrintSettingsStore &settings) {
  for (const std::string &keyword : keywords)
    makePlainNumber(ppd, keyword, settings);
  const char *const value = settings.get(IPA_KEY_ENABLE);
  const auto flag = value != nullptr ? readBoolean(value) : std::nullopt;
  if (flag)
    settings.set(IPA_KEY_ENABLE, *flag ? IPA_VALUE_TRUE : IPA_VALUE_FALSE);
}

} // namespace imageposition
