/// Reads values of any type from property lists and print settings.
#ifndef IMAGEPOSITION_SETTINGS_PROPERTYVALUES_H
#define IMAGEPOSITION_SETTINGS_PROPERTYVALUES_H

#import <Foundation/Foundation.h>

#include <cstdint>

namespace imageposition {

/// The dictionary's entry if it is a string; null otherwise, and if `dictionary` is not a
/// dictionary. The dictionary owns the string.
NSString *stringEntry(id dictionary, NSString *key);

/// Reads a string as an integer; truncates and clamps a number to 32 bits; returns 0 for anything
/// else, null included.
int32_t integerOf(id value);

/// The value formatted with "%d"; autoreleased.
NSString *integerString(int32_t value);

} // namespace imageposition

#endif
