#import "PropertyValues.h"

#include "IntegerText.hpp"
#import "TextBridge.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace imageposition {

NSString *stringEntry(id dictionary, NSString *key) {
  if (![dictionary isKindOfClass:[NSDictionary class]])
    return nil;
  id value = [static_cast<NSDictionary *>(dictionary) objectForKey:key];
  return isString(value) ? value : nil;
}

int32_t integerOf(id value) {
  if (isString(value))
    return readInteger(toUtf16(value));
  if (![value isKindOfClass:[NSNumber class]])
    return 0;
  // A double holds every 32-bit integer; `intValue` would wrap.
  const double number = [static_cast<NSNumber *>(value) doubleValue];
  using Limits = std::numeric_limits<int32_t>;
  if (std::isnan(number))
    return 0;
  return static_cast<int32_t>(
      std::min<double>(std::max<double>(number, Limits::min()), Limits::max()));
}

NSString *integerString(int32_t value) {
  // Each ASCII character is one UTF-16 unit.
  const std::string text = writeInteger(value);
  const std::u16string units(text.begin(), text.end());
  return [NSString stringWithCharacters:reinterpret_cast<const unichar *>(units.data())
                                 length:units.size()];
}

} // namespace imageposition
