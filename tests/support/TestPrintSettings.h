/// Print settings of a job for tests; they record every access and fail on demand.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_TESTPRINTSETTINGS_H
#define IMAGEPOSITION_TESTS_SUPPORT_TESTPRINTSETTINGS_H

#import <ApplicationServices/ApplicationServices.h>

#include "Journal.hpp"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace imageposition::test {

/// Defines `PMPrintSettingsGetValue` and `PMPrintSettingsSetValue` for the executable. Using a
/// handle without a live store fails the test.
class TestPrintSettings {
public:
  enum class Access { Get, Set };
  /// One call of the two functions. `value` is the value read or written, "(null)" if there is
  /// none.
  struct Call {
    Access access;
    std::string key;
    std::string value;
    bool locked;
    OSStatus status;
  };

  TestPrintSettings();
  ~TestPrintSettings();
  TestPrintSettings(const TestPrintSettings &) = delete;
  TestPrintSettings &operator=(const TestPrintSettings &) = delete;

  PMPrintSettings handle() const;

  // Access by the test: not recorded, and never failing.
  void put(const std::string &key, const std::string &text);
  void putObject(const std::string &key, id value);
  /// Adds an entry that is read successfully as null.
  void putNothing(const std::string &key);
  void lock(const std::string &key);
  void remove(const std::string &key);
  /// Nothing if there is no such entry; the description of a value that is not a string.
  std::optional<std::string> text(const std::string &key) const;
  id object(const std::string &key) const;
  std::size_t size() const;

  const std::vector<Call> &calls() const { return calls_; }
  std::size_t count(Access access) const;
  void forgetCalls() { calls_.clear(); }
  /// Also writes "get KEY" and "set KEY=VALUE" (with " locked" appended) to the journal.
  void recordInto(Journal *journal) { journal_ = journal; }

  /// Lets the n-th read or write from now (from 1) fail, once.
  void failRead(int n) { readsUntilFailure_ = n; }
  void failWrite(int n) { writesUntilFailure_ = n; }
  void failReadsOf(const std::string &key) { unreadable_.insert(key); }
  void failWritesOf(const std::string &key) { unwritable_.insert(key); }
  void stopFailing();

private:
  friend OSStatus(::PMPrintSettingsGetValue)(PMPrintSettings, CFStringRef, CFTypeRef *);
  friend OSStatus(::PMPrintSettingsSetValue)(PMPrintSettings, CFStringRef, CFTypeRef, Boolean);

  static TestPrintSettings *find(PMPrintSettings handle);
  OSStatus get(const std::string &key, CFTypeRef *value);
  OSStatus set(const std::string &key, id value, bool locked);

  NSMutableDictionary *values_;
  std::set<std::string> locked_;
  std::set<std::string> unreadable_;
  std::set<std::string> unwritable_;
  int readsUntilFailure_ = 0;
  int writesUntilFailure_ = 0;
  std::vector<Call> calls_;
  Journal *journal_ = nullptr;
};

} // namespace imageposition::test

#endif
