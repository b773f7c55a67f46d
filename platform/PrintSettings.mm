#import "PrintCore.h"

#import "TextBridge.h"

using imageposition::PrintSettingsStore;

/// What a handle points to.
struct OpaquePMPrintSettings {
  explicit OpaquePMPrintSettings(PrintSettingsStore &settings)
      : store(settings), readValues([[NSMutableDictionary alloc] init]) {}
  ~OpaquePMPrintSettings() { [readValues release]; }
  OpaquePMPrintSettings(const OpaquePMPrintSettings &) = delete;
  OpaquePMPrintSettings &operator=(const OpaquePMPrintSettings &) = delete;

  PrintSettingsStore &store;
  /// Callers do not own the values they read, so they are kept here, under the name in lower case.
  NSMutableDictionary *readValues;
};

namespace {

/// In the range of macOS's parameter errors; callers only distinguish zero from the rest.
enum : OSStatus { kSucceeded = 0, kBadArgument = -50, kNoSuchEntry = -9999, kEntryLocked = -54 };

/// Returns nothing for an object that is neither a number nor a string.
std::optional<std::string> stringFromValue(id value) {
  if ([value isKindOfClass:[NSNumber class]])
    return imageposition::toText([value stringValue]);
  return imageposition::toOptionalText(value);
}

OSStatus statusOf(PrintSettingsStore::Outcome outcome) {
  switch (outcome) {
  case PrintSettingsStore::Outcome::Stored:
    return kSucceeded;
  case PrintSettingsStore::Outcome::Locked:
    return kEntryLocked;
  case PrintSettingsStore::Outcome::BadName:
  case PrintSettingsStore::Outcome::BadValue:
    break;
  }
  return kBadArgument;
}

/// Returns the object for an entry's value: the one returned before, unless the value has changed
/// since, perhaps through the store's C++ interface.
NSString *objectForValue(OpaquePMPrintSettings &settings, NSString *key, const char *value) {
  NSString *const name = [key lowercaseString];
  NSString *const current = imageposition::toString(value);
  NSString *const known = [settings.readValues objectForKey:name];
  if (known != nil && [known isEqualToString:current])
    return known;
  // A caller that still holds the former object may use it until the current event is handled.
  [[known retain] autorelease];
  [settings.readValues setObject:current forKey:name];
  return current;
}

} // namespace

__attribute__((visibility("default"))) OSStatus
PMPrintSettingsGetValue(PMPrintSettings settings, CFStringRef key, CFTypeRef *value) {
  if (settings == nullptr || key == nullptr || value == nullptr)
    return kBadArgument;
  NSString *const name = (NSString *)key;
  const char *const stored = settings->store.get(imageposition::toText(name));
  if (stored == nullptr)
    return kNoSuchEntry;
  *value = (CFTypeRef)objectForValue(*settings, name, stored);
  return kSucceeded;
}

__attribute__((visibility("default"))) OSStatus PMPrintSettingsSetValue(PMPrintSettings settings,
                                                                        CFStringRef key,
                                                                        CFTypeRef value,
                                                                        Boolean locked) {
  if (settings == nullptr || key == nullptr || value == nullptr)
    return kBadArgument;
  const auto string = stringFromValue((id)value);
  if (!string)
    return kBadArgument;
  return statusOf(
      settings->store.set(imageposition::toText((NSString *)key), *string, locked != 0));
}

namespace imageposition {

PrintSettingsHandle::PrintSettingsHandle(PrintSettingsStore &store)
    : handle_(new OpaquePMPrintSettings(store)) {}

PrintSettingsHandle::~PrintSettingsHandle() { delete handle_; }

} // namespace imageposition
