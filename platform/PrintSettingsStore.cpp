#include "PrintSettingsStore.hpp"

#include "Utf.hpp"

#include <algorithm>
#include <cstdlib>
#include <strings.h>

namespace imageposition {

namespace {

/// CUPS drops the one of these two when the other is added.
constexpr std::string_view kQualityNames[] = {"cupsPrintQuality", "print-quality"};

bool isSameName(std::string_view left, std::string_view right) noexcept {
  return left.size() == right.size() && strncasecmp(left.data(), right.data(), left.size()) == 0;
}

/// The name whose entry CUPS removes when `name` is added; empty for most.
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

// cppcheck-suppress operatorEqVarError ; an observer stays with its object
PrintSettingsStore &PrintSettingsStore::operator=(const PrintSettingsStore &other) {
  if (this != &other) {
    clear();
    copyFrom(other);
    tell();
  }
  return *this;
}

PrintSettingsStore::~PrintSettingsStore() { clear(); }

// CUPS keeps every string in one sorted table and closes the gap that each leaves: from the last to
// the first, there is little behind it to move.
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

// CUPS leaves the memory of a list without entries to whoever thinks of it, and takes new memory
// for the next entry.
void PrintSettingsStore::take(const std::string &name) {
  count_ = cupsRemoveOption(name.c_str(), count_, &options_);
  if (count_ > 0)
    return;
  std::free(options_);
  options_ = nullptr;
}

void PrintSettingsStore::tell() const {
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
  const std::string nameText(name);
  const std::string_view displaced = displacedName(name);
  if (!displaced.empty()) // CUPS looks through the whole list
    take(std::string(displaced));
  count_ = cupsAddOption(nameText.c_str(), std::string(value).c_str(), count_, &options_);
  if (locked)
    locked_.insert(nameText);
  tell();
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
  take(std::string(name));
  tell();
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
