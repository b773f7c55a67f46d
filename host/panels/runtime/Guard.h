/// Calls into code that may raise: catches what it raises, and describes it.
#ifndef IMAGEPOSITION_PANELS_RUNTIME_GUARD_H
#define IMAGEPOSITION_PANELS_RUNTIME_GUARD_H

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Runs `body`. Returns the name and reason of what it raised, or null. In plain Objective-C,
/// because g++ passes no usable exception object to a `@catch` in Objective-C++.
NSString *IPWhatIsRaisedBy(void (*body)(void *context), void *context);

#ifdef __cplusplus
}

#include "TextBridge.h"

#include <exception>
#include <optional>
#include <string>

namespace imageposition {

/// The same for any callable, and for C++ exceptions of any type. None if nothing was raised.
template <typename Body> std::optional<std::string> whatIsRaisedBy(Body &&body) {
  struct Call {
    Body &body;
    std::optional<std::string> exception;
  } call{body, std::nullopt};
  const auto callBody = [](void *context) {
    Call &inner = *static_cast<Call *>(context);
    try {
      inner.body();
    } catch (const std::exception &exception) {
      inner.exception = exception.what();
    }
  };
  // A catch-all in `callBody` would also catch Objective-C exceptions, without a description.
  try {
    NSString *const raised = IPWhatIsRaisedBy(callBody, &call);
    return raised != nil ? toText(raised) : call.exception;
  } catch (...) {
    return "an exception without description";
  }
}

} // namespace imageposition
#endif

#endif
