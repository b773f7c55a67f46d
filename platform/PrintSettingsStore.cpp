#include "PrintSettingsStore.hpp"

#include "Utf.hpp"

#include <algorithm>
#include <cstdlib>
#include <strings.h>

namespace imageposition {

namespace {

/// Adding one of these makes CUPS remove the other.
constexpr std::string_view kQualityNames[] = {"cupsPrintQuality", "print-quality"};

bool isSameName(std::string_view left, std::string_view right) noexcept {
  return left.size() == right.size() && strncasecmp(left.data(), right.data(), left.size()) == 0;
}

/// The name whose entry CUPS removes when `name` is added; empty if there is none.
std::string_view displacedName(std::string_view name) noexcept {
  if (isSameName(name, kQualityNames[0]))
    return kQualityNames[1];
  if (isSameName(name, kQualityNames[1]))
    return kQualityNames[0];
  return {};
}

} // namespace

bool PrintSettingsStore::IgnoringCase::operator()(const std::string &left,
                                                  const std::string &right) const noexcept {
  return strcasecmp(left.c_str(), right.c_str()) < 0;
}

PrintSettingsStore::PrintSettingsStore(const PrintSettingsStore &other) { copyFrom(other); }

// cppcheck-suppress operatorEqVarError ; the observer is not copied
PrintSettingsStore &PrintSettingsStore::operator=(const PrintSettingsStore &other) {
  if (this != &other) {
    clear();
    copyFrom(other);
    notifyObserver();
  }
  return *this;
}

PrintSettingsStore::~PrintSettingsStore() { clear(); }

// CUPS keeps all strings in one sorted table and moves the later ones down for each string that it
// frees. Freeing from the last to the first leaves little to move.
void PrintSettingsStore::clear() {
  std::reverse(options_, options_ + count_);
  cupsFreeOptions(count_, options_);
  options_ = nullptr;
  count_ = 0;
}

void PrintSettingsStore::copyFrom(const PrintSettingsStore &other) {
  for (int i = 0; i < other.count_; i++)
    count_ = cupsAddOption(other.options_[i].name, other.options_[i].value, count_, &options_);
  locked_ = other.locked_;
}

// cupsRemoveOption never frees an emptied list, and cupsAddOption allocates a new one.
void PrintSettingsStore::removeEntry(const std::string &name) {
  count_ = cupsRemoveOption(name.c_str(), count_, &options_);
  if (count_ > 0)
    return;
  std::free(options_);
  options_ = nullptr;
}

void PrintSettingsStore::notifyObserver() const {
  if (observer_ != nullptr)
    observer_->settingsChanged();
}

PrintSettingsStore::Outcome PrintSettingsStore::set(std::string_view name, std::string_view value,
                                                    bool locked) {
  if (!isUsableName(name))
    return Outcome::BadName;
  if (!isUsableValue(value))
    return Outcome::BadValue;
  if (isLocked(name) || isLocked(displacedName(name)))
    return Outcome::Locked;
  const std::string key(name);
  const std::string_view displaced = displacedName(name);
  if (!displaced.empty()) // removing searches the whole list
    removeEntry(std::string(displaced));
  count_ = cupsAddOption(key.c_str(), std::string(value).c_str(), count_, &options_);
  if (locked)
    locked_.insert(key);
  notifyObserver();
  return Outcome::Stored;
}

const char *PrintSettingsStore::get(std::string_view name) const {
  if (!isUsableName(name))
    return nullptr;
  return cupsGetOption(std::string(name).c_str(), count_, options_);
}

bool PrintSettingsStore::remove(std::string_view name) {
  if (isLocked(name) || get(name) == nullptr)
    return false;
  removeEntry(std::string(name));
  notifyObserver();
  return true;
}

bool PrintSettingsStore::isLocked(std::string_view name) const {
  return locked_.count(std::string(name)) != 0;
}

bool PrintSettingsStore::isUsableName(std::string_view name) noexcept {
  constexpr std::string_view kMeaningful = "=\"'{}\\,$`;&|<>()*?[]~#!^/";
  return !name.empty() && name.size() <= kLongestName &&
         std::all_of(name.begin(), name.end(), [=](char c) {
           return c > ' ' && c < '\x7F' && kMeaningful.find(c) == std::string_view::npos;
         });
}

bool PrintSettingsStore::isUsableValue(std::string_view value) noexcept {
  return value.size() <= kLongestValue && value.find('\0') == std::string_view::npos &&
         isWellFormedUtf8(value);
}

} // namespace imageposition
