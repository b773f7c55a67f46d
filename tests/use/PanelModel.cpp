#include "PanelModel.hpp"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace imageposition::test {
namespace {

constexpr const char *kFlag = "com.morva.printsettings.19AImagePositionEnable";
constexpr const char *kCheckTrace = "@@@Check on checkbox Enable Image Position Adjust!";

// std::strtol() saturates at limits that are at least as wide as 32 bits.
std::int32_t number(const std::string &text) {
  return static_cast<std::int32_t>(std::clamp<long long>(std::strtoll(text.c_str(), nullptr, 10),
                                                         std::numeric_limits<std::int32_t>::min(),
                                                         std::numeric_limits<std::int32_t>::max()));
}

std::int32_t number(const StoredValue &value) {
  return value.kind == StoredValue::Kind::Foreign ? 0 : number(value.text);
}

bool failsNow(int &counter) { return counter > 0 && --counter == 0; }

struct Interval {
  std::int32_t lower = 0;
  std::int32_t upper = 0;
};

// An absent interval is 0 to 0; a string without a colon is not an interval.
std::optional<Interval> interval(const PanelRule::Part &text) {
  if (!text)
    return Interval{};
  const std::size_t colon = text->find(':');
  if (colon == std::string::npos)
    return std::nullopt;
  return Interval{number(text->substr(0, colon)), number(text->substr(colon + 1))};
}

std::string withNumber(std::string text, const std::string &mark, std::int32_t value) {
  const std::string digits = std::to_string(value);
  for (std::size_t at = text.find(mark); at != std::string::npos && !mark.empty();
       at = text.find(mark, at + digits.size()))
    text.replace(at, mark.size(), digits);
  return text;
}

} // namespace

PanelModel::PanelModel() {
  static const char *const kNames[] = {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"};
  for (std::size_t i = 0; i < offsets.size(); ++i)
    offsets[i].name = kNames[i];
}

std::string PanelModel::localized(const std::string &key) const {
  const auto text = strings.find(key);
  return text == strings.end() ? key : text->second;
}

// The print settings.

bool PanelModel::settingsAnswer() { return !failsNow(failRequest) && settingsThere; }

const StoredValue *PanelModel::read(bool there, const std::string &key) {
  if (!there || failsNow(failRead) || unreadable.count(key) != 0 || store.count(key) == 0)
    return nullptr;
  return &store[key];
}

bool PanelModel::write(bool there, const std::string &key, const std::string &value) {
  if (!there || failsNow(failWrite) || unwritable.count(key) != 0 || locked.count(key) != 0)
    return false;
  store[key] = {value};
  return true;
}

// One offset.

void PanelModel::clamp(Offset &offset) {
  if (offset.value > offset.max)
    offset.value = offset.max;
  else if (offset.value < offset.min)
    offset.value = offset.min;
}

void PanelModel::show(Offset &offset) {
  clamp(offset);
  if (hasView)
    offset.shown = std::to_string(offset.value);
}

void PanelModel::set(Offset &offset, std::int32_t value) {
  offset.value = value;
  show(offset);
}

void PanelModel::setAvailable(Offset &offset, bool available) {
  if (available)
    return; // the update of availability at the end hides the effect
  set(offset, offset.defaultValue);
  offset.fieldIsGray = offset.fieldIsGray || hasView;
}

void PanelModel::getTicket(Offset &offset, bool there) {
  const StoredValue *stored = read(there, offset.ticketKey);
  offset.value = stored != nullptr ? number(*stored) : offset.defaultValue;
  if (hasView)
    show(offset);
}

void PanelModel::setTicket(Offset &offset, bool there) {
  clamp(offset);
  if (!write(there, offset.ticketKey, std::to_string(offset.value)))
    getTicket(offset, there);
}

void PanelModel::checkUI(Offset &offset, bool there) {
  if (hasView) {
    if (number(offset.shown) != offset.value)
      offset.value = number(offset.shown);
    offset.value = static_cast<std::int32_t>(static_cast<std::uint32_t>(offset.value) +
                                             static_cast<std::uint32_t>(offset.steps));
    offset.steps = 0;
    offset.nameText = localized(offset.name);
    offset.rangeText =
        withNumber(withNumber(localized(offset.rangeTemplate), offset.maxMark, offset.max),
                   offset.minMark, offset.min);
  }
  setTicket(offset, there);
  getTicket(offset, there);
}

// Rules.

bool PanelModel::holds(const PanelRule &rule) const {
  if (rule.conditionType == "PPD") {
    const auto attribute = printer->attributes.find(rule.conditionPattern.value_or(""));
    return attribute != printer->attributes.end() && rule.conditionValue == attribute->second;
  }
  // Settings are related to each other only once the view is loaded.
  if (rule.conditionType != "Setting" || !hasView)
    return false;
  const auto named = std::find_if(offsets.begin(), offsets.end(), [&](const Offset &offset) {
    return rule.conditionObj == offset.name;
  });
  if (named == offsets.end())
    return false;
  if (rule.conditionPattern == "Value")
    return rule.conditionValue == std::to_string(named->value);
  const auto allowed = interval(rule.conditionValue);
  return rule.conditionPattern == "Range" && allowed && allowed->lower <= named->value &&
         allowed->upper >= named->value;
}

void PanelModel::act(Offset &offset, const PanelRule &rule) {
  if (rule.actionPattern == "Range") {
    if (const auto range = interval(rule.actionValue)) {
      offset.min = range->lower;
      offset.max = range->upper;
    }
  }
  if (!rule.actionValue)
    return;
  if (rule.actionPattern == "Value")
    set(offset, number(*rule.actionValue));
  else if (rule.actionPattern == "Default")
    offset.defaultValue = number(*rule.actionValue);
  else if (rule.actionPattern == "View" && (rule.actionValue == "ON" || rule.actionValue == "OFF"))
    setAvailable(offset, rule.actionValue == "ON");
}

void PanelModel::applyRules(Offset &offset) {
  for (const PanelRule &rule : rules)
    if (rule.actionObj == offset.name && holds(rule))
      act(offset, rule);
}

// The controller.

bool PanelModel::isAllowed() {
  const bool simplex = printer->duplex == "None";
  const bool withBanner = printer->banner == "True";
  if (simplex)
    log.emplace_back("@@@Get duplex setting Duplex = None !");
  if (withBanner)
    log.emplace_back("@@@Get MVBannerPagePrint setting  True= True !");
  log.emplace_back(kCheckTrace);
  return !simplex && !withBanner;
}

void PanelModel::grayUI() {
  const bool allowed = isAllowed();
  if (!hasView)
    return;
  isColoured = true;
  checkEnabled = buttonEnabled = allowed;
  for (std::size_t i = 0; i < offsets.size(); ++i)
    offsets[i].enabled = allowed && (i < BackLRM || checked);
  offsets[FrontLRM].nameText = localized(checked ? "FrontLRM" : "LRM");
  offsets[FrontTBM].nameText = localized(checked ? "FrontTBM" : "TBM");
}

void PanelModel::prepareForShow() {
  const bool there = settingsAnswer();
  for (const Name name : definitionOrder) {
    applyRules(offsets[name]);
    getTicket(offsets[name], there);
  }
  notifyUI();
}

void PanelModel::notifyUI() {
  const bool there = settingsAnswer();
  if (hasView) {
    checkTitle = localized("EnableImgPstAdj");
    buttonTitle = localized("RestoreDefaults");
  }
  if (there) {
    for (Offset &offset : offsets)
      checkUI(offset, there);
    for (Offset &offset : offsets)
      applyRules(offset);
  }
  grayUI();
}

bool PanelModel::getTicket() {
  const bool there = settingsAnswer();
  if (there) {
    const StoredValue *flag = read(there, kFlag);
    const bool isTrue =
        flag != nullptr && flag->kind == StoredValue::Kind::Text && flag->text == "True";
    checked = hasView && isTrue;
    if (flag != nullptr)
      log.emplace_back("Get Enable Image Position Adjust PrintTicket success.");
    for (Offset &offset : offsets)
      getTicket(offset, there);
  }
  grayUI();
  return there;
}

bool PanelModel::saveTicket() {
  const bool there = settingsAnswer();
  if (!there)
    return false;
  for (Offset &offset : offsets)
    setTicket(offset, there);
  if (!write(there, kFlag, checked ? "True" : "False"))
    log.emplace_back("Set Enable Image Position Adjust PrintTicket fail.");
  return true;
}

void PanelModel::checkSettingsValue() {
  for (Offset &offset : offsets)
    clamp(offset);
}

// The user.

void PanelModel::type(Offset &offset, const std::u16string &text) {
  std::string kept;
  for (const char16_t unit : text)
    if ((unit >= u'0' && unit <= u'9') || unit == u'-')
      kept += static_cast<char>(unit);
  const std::int32_t typed = number(kept);
  if (typed > offset.fieldMax)
    offset.shown = std::to_string(offset.fieldMax);
  else if (typed < offset.fieldMin)
    offset.shown = std::to_string(offset.fieldMin);
  else
    offset.shown = kept == "-" || kept == "-0" ? kept : std::to_string(typed);
}

void PanelModel::action() {
  notifyUI();
  checkSettingsValue();
}

void PanelModel::clickCheckbox() {
  checked = !checked;
  grayUI();
}

void PanelModel::restoreDefaults() {
  checked = false;
  for (Offset &offset : offsets)
    set(offset, 0);
  grayUI();
}

// The panel.

void PanelModel::loadView() {
  hasView = true;
  for (Offset &offset : offsets) {
    offset.fieldMin = offset.min;
    offset.fieldMax = offset.max;
  }
}

void PanelModel::willShow() {
  wasShown_ = true;
  prepareForShow();
  getTicket();
  saveTicket();
}

void PanelModel::shouldPrint() {
  if (!wasShown_)
    getTicket();
  notifyUI();
  saveTicket();
}

void PanelModel::saveValues() {
  if (!wasShown_)
    return;
  notifyUI();
  saveTicket();
  getTicket();
}

void PanelModel::restoreValues() {
  if (!wasShown_)
    return;
  getTicket();
  saveTicket();
  getTicket();
}

PanelModel::Summary PanelModel::summary() {
  getTicket();
  Summary summary;
  if (!isAllowed())
    return summary;
  const auto add = [&](const std::string &key, const std::string &value) {
    summary.values[localized(key)] = value;
    summary.order.push_back(localized(key));
  };
  const auto value = [&](Name name) { return std::to_string(offsets[name].value); };
  add("EnableImgPstAdj", checked ? "1" : "0");
  add(checked ? offsets[FrontLRM].summaryName : "LRM", value(FrontLRM));
  add(checked ? offsets[FrontTBM].summaryName : "TBM", value(FrontTBM));
  add(offsets[BackLRM].summaryName, value(BackLRM));
  add(offsets[BackTBM].summaryName, value(BackTBM));
  return summary;
}

} // namespace imageposition::test
