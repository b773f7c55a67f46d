#include "tests/controller/PanelModel.hpp"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace imageposition::test {
namespace {

constexpr const char *kFlag = "com.morva.printsettings.19AImagePositionEnable";

std::int32_t number(const std::string &text) {
  const long long value = std::strtoll(text.c_str(), nullptr, 10);
  return static_cast<std::int32_t>(std::clamp<long long>(
      value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

bool failsNow(int &counter) { return counter > 0 && --counter == 0; }

} // namespace

bool PanelModel::read(const std::string &key, std::string &value) {
  if (!settingsThere || failsNow(failRead) || store.count(key) == 0)
    return false;
  value = store[key];
  return true;
}

bool PanelModel::write(const std::string &key, const std::string &value) {
  if (!settingsThere || failsNow(failWrite))
    return false;
  store[key] = value;
  return true;
}

void PanelModel::clamp(Offset &offset) {
  if (offset.value > offset.max)
    offset.value = offset.max;
  else if (offset.value < offset.min)
    offset.value = offset.min;
}

void PanelModel::show(Offset &offset) {
  clamp(offset);
  offset.shown = std::to_string(offset.value);
}

void PanelModel::getTicket(Offset &offset) {
  std::string stored;
  offset.value = read(offset.ticketKey, stored) ? number(stored) : offset.defaultValue;
  show(offset);
}

void PanelModel::setTicket(Offset &offset) {
  clamp(offset);
  if (!write(offset.ticketKey, std::to_string(offset.value)))
    getTicket(offset);
}

void PanelModel::checkUI(Offset &offset) {
  if (number(offset.shown) != offset.value)
    offset.value = number(offset.shown);
  offset.value += offset.steps;
  offset.steps = 0;
  setTicket(offset);
  getTicket(offset);
}

// The same as `rulesOfTheModel` in the test.
void PanelModel::applyRules(Name name) {
  if (!withRules)
    return;
  Offset &offset = offsets[name];
  switch (name) {
  case FrontLRM:
    break;
  case FrontTBM:
    if (offsets[BackLRM].value == 7) {
      offset.min = -5;
      offset.max = 5;
    }
    break;
  case BackLRM:
    if (offsets[FrontLRM].value >= 5 && offsets[FrontLRM].value <= 10) {
      offset.value = 3;
      show(offset);
    }
    break;
  case BackTBM:
    if (offsets[FrontTBM].value == 0)
      offset.defaultValue = 4;
    if (offsets[FrontLRM].value == -1) {
      offset.value = offset.defaultValue;
      show(offset);
      offset.fieldIsGray = true;
    }
    break;
  }
}

void PanelModel::grayUI() {
  checkEnabled = allowed;
  for (std::size_t i = 0; i < offsets.size(); ++i)
    offsets[i].enabled = allowed && (i < BackLRM || checked);
}

void PanelModel::prepareForShow() {
  for (Name name : {FrontLRM, FrontTBM, BackLRM, BackTBM}) {
    applyRules(name);
    getTicket(offsets[name]);
  }
  notifyUI();
}

void PanelModel::notifyUI() {
  if (settingsThere) {
    for (Offset &offset : offsets)
      checkUI(offset);
    for (Name name : {FrontLRM, FrontTBM, BackLRM, BackTBM})
      applyRules(name);
  }
  grayUI();
}

bool PanelModel::getTicket() {
  if (settingsThere) {
    std::string flag;
    checked = read(kFlag, flag) && flag == "True";
    for (Offset &offset : offsets)
      getTicket(offset);
  }
  grayUI();
  return settingsThere;
}

bool PanelModel::saveTicket() {
  if (!settingsThere)
    return false;
  for (Offset &offset : offsets)
    setTicket(offset);
  write(kFlag, checked ? "True" : "False");
  return true;
}

void PanelModel::action() {
  notifyUI();
  for (Offset &offset : offsets)
    clamp(offset);
}

void PanelModel::restoreDefaults() {
  checked = false;
  for (Offset &offset : offsets) {
    offset.value = 0;
    show(offset);
  }
  grayUI();
}

} // namespace imageposition::test
