/// Replaces the implementation of one of GNUstep's methods, for a while or for good.
#ifndef IMAGEPOSITION_PANELS_RUNTIME_REPLACED_H
#define IMAGEPOSITION_PANELS_RUNTIME_REPLACED_H

#include <objc/runtime.h>

namespace imageposition {

/// Does nothing if GNUstep has no such method.
class Replaced {
public:
  static Replaced classOperation(Class owner, SEL operation) {
    return Replaced(class_getClassMethod(owner, operation));
  }
  static Replaced objectOperation(Class owner, SEL operation) {
    return Replaced(class_getInstanceMethod(owner, operation));
  }

  /// `other` takes the method's arguments, `self` and `_cmd` included, and returns its type.
  template <typename Function> void by(Function *other) {
    if (method_ != nullptr && before_ == nullptr)
      before_ =
          method_setImplementation(method_, reinterpret_cast<IMP>(reinterpret_cast<void *>(other)));
  }
  void restore() {
    if (before_ != nullptr)
      method_setImplementation(method_, before_);
    before_ = nullptr;
  }
  /// The original implementation, while it is replaced.
  template <typename Function> Function *before() const {
    return reinterpret_cast<Function *>(reinterpret_cast<void *>(before_));
  }

private:
  explicit Replaced(Method method) : method_(method) {}

  Method method_;
  IMP before_ = nullptr;
};

} // namespace imageposition

#endif
