/// Converts between NSString and test literals without the code under test.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_TEXT_H
#define IMAGEPOSITION_TESTS_SUPPORT_TEXT_H

#import <Foundation/Foundation.h>

#include <string>

namespace imageposition::test {

inline NSString *nsString(const std::string &utf8) {
  return [NSString stringWithUTF8String:utf8.c_str()];
}

/// Returns "(null)" for null, and the description of an object that is not a string.
inline std::string cxxString(id object) {
  if (object == nil)
    return "(null)";
  NSString *text = [object isKindOfClass:[NSString class]] ? object : [object description];
  NSData *bytes = [text dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
  return std::string(static_cast<const char *>([bytes bytes]), [bytes length]);
}

} // namespace imageposition::test

#endif
