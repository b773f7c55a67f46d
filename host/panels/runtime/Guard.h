/// Calls into foreign code, with whatever it raises caught and put into words.
#ifndef IMAGEPOSITION_HOST_GUARD_H
#define IMAGEPOSITION_HOST_GUARD_H

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Runs `body`; null when it raised nothing, else the name and reason of what it raised. Plain
/// Objective-C: this runtime's C++ front end hands over no usable exception object.
NSString *IPWhatIsRaisedBy(void (*body)(void *context), void *context);

#ifdef __cplusplus
}

#include "TextBridge.h"

#include <exception>
#include <optional>
#include <string>

namespace imageposition {

/// The same for any callable, C++ exceptions of any type included; none when nothing was raised.
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
  // Catching everything there would catch what Objective-C raises, without a word of it.
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
