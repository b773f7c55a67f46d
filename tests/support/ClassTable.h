/// What the Objective-C runtime knows about a class, as lists that a test can compare with a table.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_CLASSTABLE_H
#define IMAGEPOSITION_TESTS_SUPPORT_CLASSTABLE_H

#import <Foundation/Foundation.h>
#import <objc/runtime.h>

#include <cstdlib>
#include <set>
#include <string>
#include <vector>

namespace imageposition::test {

/// The fields that the class itself declares, in order, each as "name encoding". An object's
/// encoding is just "@", because compilers differ in whether they add its class.
inline std::vector<std::string> fieldsOf(Class type) {
  std::vector<std::string> fields;
  unsigned count = 0;
  Ivar *list = class_copyIvarList(type, &count);
  for (unsigned i = 0; i < count; ++i) {
    std::string encoding = ivar_getTypeEncoding(list[i]);
    if (encoding.front() == '@') {
      encoding = "@";
    } else if (encoding.front() == '^') {
      encoding = "^";
    }
    fields.push_back(ivar_getName(list[i]) + (" " + encoding));
  }
  free(list);
  return fields;
}

/// The names of the methods that the class itself implements.
inline std::set<std::string> operationsOf(Class type) {
  std::set<std::string> operations;
  unsigned count = 0;
  Method *list = class_copyMethodList(type, &count);
  for (unsigned i = 0; i < count; ++i) {
    operations.insert(sel_getName(method_getName(list[i])));
  }
  free(list);
  return operations;
}

} // namespace imageposition::test

#endif
