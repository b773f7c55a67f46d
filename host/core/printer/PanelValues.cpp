#include "PanelValues.hpp"

#include "CustomValue.hpp"
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
