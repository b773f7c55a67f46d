/// Conversion between NSString and C++ strings. All code converts through these functions.
#ifndef IMAGEPOSITION_PLATFORM_TEXTBRIDGE_H
#define IMAGEPOSITION_PLATFORM_TEXTBRIDGE_H

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

namespace imageposition {

/// The string in UTF-8, with U+FFFD for a lone surrogate; empty for null.
std::string toText(NSString *string);

/// False for null.
bool isString(id object);

/// Returns nothing for null and for an object that is not a string.
std::optional<std::string> toOptionalText(id object);

/// The string's UTF-16 units, unchecked; empty for null.
std::u16string toUtf16(NSString *string);

/// An autoreleased string, with U+FFFD in place of malformed UTF-8.
NSString *toString(std::string_view utf8);

} // namespace imageposition

#endif
