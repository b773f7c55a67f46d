/// A superclass whose initializer returns null, which GNUstep's classes never do.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_REFUSINGINIT_H
#define IMAGEPOSITION_TESTS_SUPPORT_REFUSINGINIT_H

#import <Foundation/Foundation.h>

#include <objc/runtime.h>

#include <stdexcept>

namespace imageposition::test {

/// While an instance lives, the `init` that `Class` inherits releases its instances and returns
/// null. It is unchanged for all other classes. Only one instance may live at a time.
class RefusingInit {
public:
  explicit RefusingInit(Class type)
      : method_(class_getInstanceMethod(class_getSuperclass(type), @selector(init))) {
    if (refused() != Nil)
      throw std::logic_error("another class is refused already");
    refused() = type;
    original() = reinterpret_cast<Init>(method_getImplementation(method_));
    method_setImplementation(method_, reinterpret_cast<IMP>(refuse));
  }
  ~RefusingInit() {
    method_setImplementation(method_, reinterpret_cast<IMP>(original()));
    refused() = Nil;
  }
  RefusingInit(const RefusingInit &) = delete;
  RefusingInit &operator=(const RefusingInit &) = delete;

private:
  using Init = id (*)(id, SEL);

  static id refuse(id self, SEL selector) {
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
