/// Between the platform's strings and C++ text. Nobody converts by hand.
#ifndef IMAGEPOSITION_PLATFORM_TEXTBRIDGE_H
#define IMAGEPOSITION_PLATFORM_TEXTBRIDGE_H

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

namespace imageposition {

/// UTF-8, a lone surrogate as U+FFFD; empty for null.
std::string toText(NSString *string);

/// False for null.
bool isString(id object);

/// None for null and for every object that is not a string.
std::optional<std::string> toOptionalText(id object);

/// The string's units as they are; empty for null.
std::u16string toUtf16(NSString *string);

/// A string that the caller does not own. Malformed UTF-8 is read with U+FFFD in its place.
NSString *toString(std::string_view utf8);

} // namespace imageposition

#endif
