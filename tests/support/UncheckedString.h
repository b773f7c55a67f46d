/// Strings that NSString's initializers may refuse to make.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_UNCHECKEDSTRING_H
#define IMAGEPOSITION_TESTS_SUPPORT_UNCHECKEDSTRING_H

#import <Foundation/Foundation.h>

#include <string>

namespace imageposition::test {

/// An autoreleased string of exactly these UTF-16 units, lone surrogates included.
NSString *uncheckedString(const std::u16string &units);

} // namespace imageposition::test

#endif
