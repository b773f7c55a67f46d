/// An operation of the platform whose implementation is another, for a while or for good.
#ifndef IMAGEPOSITION_HOST_REPLACED_H
#define IMAGEPOSITION_HOST_REPLACED_H

#include <objc/runtime.h>

namespace imageposition {

/// Does nothing where the platform has no such operation.
class Replaced {
public:
  static Replaced classOperation(Class owner, SEL operation) {
    return Replaced(class_getClassMethod(owner, operation));
  }
  static Replaced objectOperation(Class owner, SEL operation) {
    return Replaced(class_getInstanceMethod(owner, operation));
  }

  /// With a function of the operation's own arguments and answer.
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
  /// The platform's own, while it is replaced.
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
