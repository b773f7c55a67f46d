#import "PrintSession.h"

#include "NumberText.hpp"
#include "PanelValues.hpp"
#include "PluginFolders.hpp"
#import "Pool.h"

#include <map>
#include <utility>

namespace imageposition {

namespace {

/// By keyword; without zeros.
using Numbers = std::map<std::string, std::string>;

Numbers numbersIn(const PrintSettingsStore &settings, const std::vector<std::string> &keywords) {
  Numbers numbers;
  for (const std::string &keyword : keywords)
    if (const char *const value = settings.get(keyword);
        value != nullptr && isWholeNumber(value) && !isSameNumber(value, "0"))
      numbers[keyword] = value;
  return numbers;
}

void removeNumbers(const std::vector<std::string> &keywords, PrintSettingsStore &settings) {
  for (const std::string &keyword : keywords)
    if (const char *const value = settings.get(keyword); value != nullptr && isWholeNumber(value))
      settings.remove(keyword);
}

} // namespace

void PrintSession::loadPanels() {
  const Pool pool;
  plugins_ =
      findPlugins({job_.arguments().plugins, job_.printer().attributeValues("APDialogExtension")},
                  pluginFolders());
  panels_ = std::make_unique<PanelSession>(job_.printer(), job_.settings());
  panels_->load(plugins_, loaded_);
}

NumbersNow PrintSession::takePrinter(OpenedPrinter opened) {
  const std::vector<std::string> before = panels_->optionKeys();
  const Numbers set = numbersIn(job_.settings(), before);
  const bool isUsual = set == numbersIn(panelDefaults(job_.printer(), before), before);
  if (isUsual)
    removeNumbers(before, job_.settings());
  panels_.reset();
  const bool isRemembered = job_.takePrinter(std::move(opened));
  loadPanels();
  if (isRemembered)
    return NumbersNow::Remembered;
  const std::vector<std::string> keywords = panels_->optionKeys();
  const Numbers now = numbersIn(job_.settings(), keywords);
  if (before.empty() || keywords.empty() || (isUsual && now == set))
    return NumbersNow::AsBefore;
  if (isUsual)
    return NumbersNow::Defaults;
  if (now != set)
    return NumbersNow::Fitted;
  const bool isDefault = now == numbersIn(panelDefaults(job_.printer(), keywords), keywords);
  return isDefault ? NumbersNow::AsBefore : NumbersNow::Kept;
}

} // namespace imageposition
