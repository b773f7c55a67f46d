#import "TextBridge.h"

#include "Utf.hpp"

namespace imageposition {

static_assert(sizeof(unichar) == sizeof(char16_t), "a unichar is a UTF-16 unit");

// Not through UTF8String, which fails on a lone surrogate.
std::u16string toUtf16(NSString *string) {
  std::u16string units([string length], u'\0');
  if (!units.empty())
    [string getCharacters:reinterpret_cast<unichar *>(&units[0])
                    range:NSMakeRange(0, units.size())];
  return units;
}

std::string toText(NSString *string) { return utf8FromUtf16(toUtf16(string)); }

// Cached, because the runtime looks a class up by name for every message to it.
bool isString(id object) {
  static const Class kString = [NSString class];
  return [object isKindOfClass:kString];
}

std::optional<std::string> toOptionalText(id object) {
  if (!isString(object))
    return std::nullopt;
  return toText(object);
}

NSString *toString(std::string_view utf8) {
  const std::u16string units = utf16FromUtf8(utf8);
  return [NSString stringWithCharacters:reinterpret_cast<const unichar *>(units.data())
                                 length:units.size()];
}

} // namespace imageposition
