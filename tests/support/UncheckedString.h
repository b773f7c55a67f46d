/// Strings that the platform's own initializers may refuse to make.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_UNCHECKEDSTRING_H
#define IMAGEPOSITION_TESTS_SUPPORT_UNCHECKEDSTRING_H

#import <Foundation/Foundation.h>

#include <string>

namespace imageposition::test {

/// A string of just these UTF-16 units, lone surrogates included; the caller does not own it.
NSString *uncheckedString(const std::u16string &units);

} // namespace imageposition::test

#endif
