#import "PanelSession.h"

#include "CustomValue.hpp"
#include "ExitCode.hpp"

#include <algorithm>
#include <iterator>

namespace imageposition {

PanelSession::PanelSession(PrinterDescription &printer, PrintSettingsStore &settings)
    : ppd_(printer.ppd()), settings_(settings), before_(settings), handle_(settings),
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
  takePlainNumbers();
}

void PanelSession::takePlainNumbers() {
  for (const auto &panel : panels_)
    for (const std::string &keyword : panel->optionKeys())
      makePlainNumber(ppd_, keyword, settings_);
}

void PanelSession::revert() {
  settings_ = before_;
  takePlainNumbers();
  for (const auto &panel : panels_) {
    try {
      panel->restore();
    } catch (const Failure &failure) {
      troubles_.push_back(failure.what());
    }
  }
}

void PanelSession::drop(const PanelDriver *panel, const std::string &trouble) {
  troubles_.push_back(trouble);
  panels_.erase(std::remove_if(panels_.begin(), panels_.end(),
                               [=](const auto &candidate) { return candidate.get() == panel; }),
                panels_.end());
}

} // namespace imageposition
