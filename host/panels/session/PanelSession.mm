#import "PanelSession.h"

#include "ExitCode.hpp"
#include "PanelValues.hpp"
#include "PluginTexts.hpp"

#include <algorithm>
#include <iterator>

namespace imageposition {

PanelSession::PanelSession(PrinterDescription &printer, PrintSettingsStore &settings)
    : printer_(printer), settings_(settings), before_(settings), handle_(settings),
      callback_([[HostCallback alloc] initWithPpd:printer.ppd() settings:handle_.get()]) {}

PanelSession::~PanelSession() {
  panels_.clear();
  [callback_ forget];
  [callback_ release];
}

void PanelSession::load(const std::vector<std::string> &paths, LoadedPlugins &loaded) {
  for (const std::string &path : paths) {
    try {
      auto panels = loaded.at(path).panels(callback_);
      std::move(panels.begin(), panels.end(), std::back_inserter(panels_));
    } catch (const Failure &failure) {
      troubles_.push_back(failure.what());
    }
  }
  takePanelValues();
}

void PanelSession::takePanelValues() {
  const PrintSettingsStore defaults = panelDefaults(printer_, optionKeys());
  for (int i = 0; i < defaults.optionCount(); i++) {
    const cups_option_t &number = defaults.options()[i];
    if (settings_.get(number.name) == nullptr)
      settings_.set(number.name, number.value);
  }
  makePanelValues(printer_.ppd(), optionKeys(), settings_);
}

std::string PanelSession::troubleText() const {
  std::string text;
  for (const std::string &trouble : troubles_)
    text += (text.empty() ? "" : "\n") + trouble;
  return text;
}

std::vector<std::string> PanelSession::optionKeys() const {
  std::vector<std::string> keys;
  for (const auto &panel : panels_)
    keys.insert(keys.end(), panel->optionKeys().begin(), panel->optionKeys().end());
  return keys;
}

PanelReplies
PanelSession::ask(const std::function<std::optional<std::string>(PanelDriver &)> &question) {
  PanelReplies replies;
  for (std::size_t i = 0; i < panels_.size();) {
    try {
      if (auto refusal = question(*panels_[i]))
        replies.refusals.push_back(std::move(*refusal));
      i++;
    } catch (const Failure &failure) {
      replies.failures.push_back(failure.what());
      drop(panels_[i].get(), failure.what());
    }
  }
  return replies;
}

PanelReplies PanelSession::askToPrint() {
  return ask([](PanelDriver &panel) {
    return panel.mayPrint() ? std::nullopt : std::optional(messages::panelRefusedJob(panel.name()));
  });
}

PanelReplies PanelSession::save() {
  return ask([](PanelDriver &panel) { return panel.save(); });
}

PanelReplies PanelSession::restore() {
  return ask([](PanelDriver &panel) { return panel.restore(); });
}

void PanelSession::revert() {
  settings_ = before_;
  takePanelValues();
  restore();
}

void PanelSession::drop(const PanelDriver *panel, const std::string &trouble) {
  troubles_.push_back(trouble);
  panels_.erase(std::remove_if(panels_.begin(), panels_.end(),
                               [=](const auto &candidate) { return candidate.get() == panel; }),
                panels_.end());
}

} // namespace imageposition
