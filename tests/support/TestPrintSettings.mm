#import "TestPrintSettings.h"

#import "Text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace imageposition::test {
namespace {

// The status of a failed access; the callers only test for zero.
constexpr OSStatus kFailed = -50;

std::vector<TestPrintSettings *> &liveStores() {
  static std::vector<TestPrintSettings *> stores;
  return stores;
}

bool countsDownToZero(int &counter) { return counter > 0 && --counter == 0; }

} // namespace

TestPrintSettings::TestPrintSettings() : values_([[NSMutableDictionary alloc] init]) {
  liveStores().push_back(this);
}

TestPrintSettings::~TestPrintSettings() {
  auto &stores = liveStores();
  stores.erase(std::remove(stores.begin(), stores.end(), this), stores.end());
  [values_ release];
}

PMPrintSettings TestPrintSettings::handle() const {
  return reinterpret_cast<PMPrintSettings>(const_cast<TestPrintSettings *>(this));
}

TestPrintSettings *TestPrintSettings::find(PMPrintSettings handle) {
  for (TestPrintSettings *store : liveStores())
    if (store->handle() == handle)
      return store;
  ADD_FAILURE() << "an access to print settings that do not exist";
  return nullptr;
}

void TestPrintSettings::put(const std::string &key, const std::string &text) {
  putObject(key, nsString(text));
}

void TestPrintSettings::putObject(const std::string &key, id value) {
  [values_ setObject:value forKey:nsString(key)];
}

void TestPrintSettings::putNothing(const std::string &key) { putObject(key, [NSNull null]); }

void TestPrintSettings::lock(const std::string &key) { locked_.insert(key); }

void TestPrintSettings::remove(const std::string &key) {
  [values_ removeObjectForKey:nsString(key)];
}

std::optional<std::string> TestPrintSettings::text(const std::string &key) const {
  id value = object(key);
  if (value == nil)
    return std::nullopt;
  return cxxString(value);
}

id TestPrintSettings::object(const std::string &key) const {
  id value = [values_ objectForKey:nsString(key)];
  return value == [NSNull null] ? nil : value;
}

std::size_t TestPrintSettings::size() const { return [values_ count]; }

std::size_t TestPrintSettings::count(Access access) const {
  return std::count_if(calls_.begin(), calls_.end(),
                       [access](const Call &call) { return call.access == access; });
}

void TestPrintSettings::stopFailing() {
  unreadable_.clear();
  unwritable_.clear();
  readsUntilFailure_ = writesUntilFailure_ = 0;
}

OSStatus TestPrintSettings::get(const std::string &key, CFTypeRef *value) {
  id stored = [values_ objectForKey:nsString(key)];
  const bool fails = countsDownToZero(readsUntilFailure_) || unreadable_.count(key) != 0;
  const OSStatus status = fails || stored == nil || value == nullptr ? kFailed : 0;
  if (status == 0)
    *value = object(key);
  calls_.push_back(
      {Access::Get, key, status == 0 ? cxxString(object(key)) : "(null)", false, status});
  if (journal_ != nullptr)
    journal_->add("get " + key);
  return status;
}

OSStatus TestPrintSettings::set(const std::string &key, id value, bool locked) {
  const bool fails = countsDownToZero(writesUntilFailure_) || unwritable_.count(key) != 0 ||
                     locked_.count(key) != 0 || value == nil;
  if (!fails) {
    [values_ setObject:value forKey:nsString(key)];
    if (locked)
      locked_.insert(key);
  }
  calls_.push_back({Access::Set, key, cxxString(value), locked, fails ? kFailed : 0});
  if (journal_ != nullptr)
    journal_->add("set " + key + "=" + cxxString(value) + (locked ? " locked" : ""));
  return fails ? kFailed : 0;
}

} // namespace imageposition::test

using imageposition::test::cxxString;
using imageposition::test::kFailed;
using imageposition::test::TestPrintSettings;

extern "C" OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, CFStringRef key,
                                            CFTypeRef *value) {
  if (settings == nullptr || key == nullptr)
    return kFailed;
  TestPrintSettings *store = TestPrintSettings::find(settings);
  return store ? store->get(cxxString((id)key), value) : kFailed;
}

extern "C" OSStatus PMPrintSettingsSetValue(PMPrintSettings settings, CFStringRef key,
                                            CFTypeRef value, Boolean locked) {
  if (settings == nullptr || key == nullptr)
    return kFailed;
  TestPrintSettings *store = TestPrintSettings::find(settings);
  return store ? store->set(cxxString((id)key), (id)value, locked != 0) : kFailed;
}
