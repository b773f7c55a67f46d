#import "PrintSession.h"

#include "NumberText.hpp"
#include "PanelValues.hpp"
#include "Phrases.hpp"
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

} // namespace

void PrintSession::loadPanels() {
  const Pool pool;
  plugins_ =
      findPlugins({job_.arguments().plugins, job_.printer().attributeValues("APDialogExtension")},
                  pluginFolders());
  panels_ = std::make_unique<PanelSession>(job_.printer(), job_.settings());
  panels_->load(plugins_, loaded_);
}

std::string PrintSession::readMeasuredOffsets() {
  panels_->takePanelValues();
  std::vector<std::string> notes = panels_->restore().failures;
  notes.push_back(job_.alignment().note());
  return messages::sentences(notes);
}

/// A printer's offsets correct its own error, so they never go to another one.
NumbersNow PrintSession::takePrinter(OpenedPrinter opened) {
  const std::vector<std::string> before = panels_->optionKeys();
  const Numbers set = numbersIn(job_.settings(), before);
  if (!before.empty())
    left_[job_.queue()] = {before, job_.removePanelSettings(before)};
  panels_.reset();
  const auto left = left_.find(opened.queue);
  const bool isRemembered = job_.takePrinter(std::move(opened));
  if (left != left_.end()) {
    job_.removePanelSettings(left->second.optionKeys);
    const PrintSettingsStore &values = left->second.values;
    for (int i = 0; i < values.optionCount(); i++)
      job_.settings().set(values.options()[i].name, values.options()[i].value);
  }
  loadPanels();
  if (left != left_.end())
    return NumbersNow::AsBefore;
  if (isRemembered)
    return job_.alignment().note().empty() ? NumbersNow::Remembered : NumbersNow::Measured;
  const std::vector<std::string> keywords = panels_->optionKeys();
  const bool isChanged =
      !before.empty() && !keywords.empty() && numbersIn(job_.settings(), keywords) != set;
  return isChanged ? NumbersNow::Defaults : NumbersNow::AsBefore;
}

} // namespace imageposition
