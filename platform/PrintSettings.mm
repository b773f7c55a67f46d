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
  /// Readers own nothing, so that what they were given is kept here, under the name in lower case.
  NSMutableDictionary *readValues;
};

namespace {

/// The range of macOS's own parameter errors; callers look at zero or not only.
enum : OSStatus { kSucceeded = 0, kBadArgument = -50, kNoSuchEntry = -9999, kEntryLocked = -54 };

/// None for an object that has no text.
std::optional<std::string> textOfValue(id value) {
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

/// The object that stands for an entry's text: the one given out before, while it still says the
/// same. The store may have been changed through its C++ side in between.
NSString *objectForText(OpaquePMPrintSettings &settings, NSString *key, const char *text) {
  NSString *const name = [key lowercaseString];
  NSString *const current = imageposition::toString(text);
  NSString *const known = [settings.readValues objectForKey:name];
  if (known != nil && [known isEqualToString:current])
    return known;
  // A reader that still holds the former object may use it until the current event is handled.
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
  const char *const text = settings->store.get(imageposition::toText(name));
  if (text == nullptr)
    return kNoSuchEntry;
  *value = (CFTypeRef)objectForText(*settings, name, text);
  return kSucceeded;
}

__attribute__((visibility("default"))) OSStatus PMPrintSettingsSetValue(PMPrintSettings settings,
                                                                        CFStringRef key,
                                                                        CFTypeRef value,
                                                                        Boolean locked) {
  if (settings == nullptr || key == nullptr || value == nullptr)
    return kBadArgument;
  const auto text = textOfValue((id)value);
  if (!text)
    return kBadArgument;
  return statusOf(settings->store.set(imageposition::toText((NSString *)key), *text, locked != 0));
}

namespace imageposition {

PrintSettingsHandle::PrintSettingsHandle(PrintSettingsStore &store)
    : handle_(new OpaquePMPrintSettings(store)) {}

PrintSettingsHandle::~PrintSettingsHandle() { delete handle_; }

} // namespace imageposition
