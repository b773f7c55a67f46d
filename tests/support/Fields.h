/// Reads and writes an instance variable by its name.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_FIELDS_H
#define IMAGEPOSITION_TESTS_SUPPORT_FIELDS_H

#import <Foundation/Foundation.h>

#include <cups/ppd.h>
#include <objc/runtime.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace imageposition::test {

/// The runtime's type encoding of a field of type `T`, up to its details.
template <class T> std::string fieldType() {
  if constexpr (std::is_same_v<T, std::int32_t>)
    return @encode(std::int32_t);
  else if constexpr (std::is_same_v<T, BOOL>)
    return @encode(BOOL);
  else if constexpr (std::is_same_v<T, void *>)
    return @encode(void *);
  else if constexpr (std::is_same_v<T, ppd_file_t *>)
    return "^{";
  else {
    static_assert(std::is_convertible_v<T, id>, "a type that no field has");
    return "@";
  }
}

/// A reference to the field, to read or to assign; does not retain or release. Throws if the
/// object's class and its superclasses have no field of that name, or one of another type.
template <class T> T &field(id object, const char *name) {
  if (object == nil)
    throw std::logic_error(std::string("no object to read the field ") + name + " of");
  Ivar variable = class_getInstanceVariable(object_getClass(object), name);
  if (variable == nullptr)
    throw std::logic_error(std::string(object_getClassName(object)) + " has no field " + name);
  const std::string type = ivar_getTypeEncoding(variable);
  const std::string expected = fieldType<T>();
  const bool hasDetail = expected == "@" || expected == "^{";
  if (hasDetail ? type.compare(0, expected.size(), expected) != 0 : type != expected)
    throw std::logic_error(std::string("field ") + name + " has type " + type + ", not " +
                           expected);
  return *reinterpret_cast<T *>(reinterpret_cast<char *>(object) + ivar_getOffset(variable));
}

/// The names of the fields that the class itself declares, in order.
inline std::vector<std::string> fieldNames(Class type) {
  unsigned count = 0;
  Ivar *variables = class_copyIvarList(type, &count);
  std::vector<std::string> names;
  for (unsigned i = 0; i < count; ++i)
    names.emplace_back(ivar_getName(variables[i]));
  free(variables);
  return names;
}

} // namespace imageposition::test

#endif
