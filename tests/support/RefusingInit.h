/// A base class whose initializer answers nothing, which the platform's own never do.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_REFUSINGINIT_H
#define IMAGEPOSITION_TESTS_SUPPORT_REFUSINGINIT_H

#import <Foundation/Foundation.h>

#include <objc/runtime.h>

#include <stdexcept>

namespace imageposition::test {

/// While it lives, the `init` that `Class` inherits releases and answers nothing for its instances,
/// and is as before for all others. One at a time.
class RefusingInit {
public:
  explicit RefusingInit(Class type)
      : method_(class_getInstanceMethod(class_getSuperclass(type), @selector(init))) {
    if (refused() != Nil)
      throw std::logic_error("another class is refused already");
    refused() = type;
    original() = reinterpret_cast<Init>(method_getImplementation(method_));
    method_setImplementation(method_, reinterpret_cast<IMP>(answer));
  }
  ~RefusingInit() {
    method_setImplementation(method_, reinterpret_cast<IMP>(original()));
    refused() = Nil;
  }
  RefusingInit(const RefusingInit &) = delete;
  RefusingInit &operator=(const RefusingInit &) = delete;

private:
  using Init = id (*)(id, SEL);

  static id answer(id self, SEL selector) {
    if (object_getClass(self) != refused())
      return original()(self, selector);
    [self release];
    return nil;
  }
  static Class &refused() {
    static Class type = Nil;
    return type;
  }
  static Init &original() {
    static Init implementation = nullptr;
    return implementation;
  }

  Method method_;
};

} // namespace imageposition::test

#endif
