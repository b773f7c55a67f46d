/// Values out of property lists and print settings, whatever type they turn out to have.
#ifndef IMAGEPOSITION_SETTINGS_PROPERTYVALUES_H
#define IMAGEPOSITION_SETTINGS_PROPERTYVALUES_H

#import <Foundation/Foundation.h>

#include <cstdint>

namespace imageposition {

/// The entry, when `dictionary` is one and the entry is a text; null otherwise. Borrowed.
NSString *textEntry(id dictionary, NSString *key);

/// Text is read as an integer, a number is cut to one within 32 bits, anything else (null too) is
/// 0.
int32_t integerOf(id value);

/// The value as "%d" text; not owned by the caller.
NSString *integerString(int32_t value);

} // namespace imageposition

#endif
