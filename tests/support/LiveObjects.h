/// Counts the objects of a class that are alive.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_LIVEOBJECTS_H
#define IMAGEPOSITION_TESTS_SUPPORT_LIVEOBJECTS_H

#import <Foundation/Foundation.h>

#include <string>

// The platform hides its own bookkeeping from optimised builds, which still have it.
extern "C" BOOL GSDebugAllocationActive(BOOL active);
extern "C" int GSDebugAllocationCount(Class type);

namespace imageposition::test {

/// While one lives, objects that are made and that go are counted.
class LiveObjects {
public:
  LiveObjects() : wasActive_(GSDebugAllocationActive(YES)) {}
  ~LiveObjects() { GSDebugAllocationActive(wasActive_); }
  LiveObjects(const LiveObjects &) = delete;
  LiveObjects &operator=(const LiveObjects &) = delete;

  /// Objects of exactly that class, not of its subclasses; compare two answers.
  static int count(Class type) { return GSDebugAllocationCount(type); }
  static int count(const std::string &name) {
    return GSDebugAllocationCount(NSClassFromString([NSString stringWithUTF8String:name.c_str()]));
  }

private:
  BOOL wasActive_;
};

} // namespace imageposition::test

#endif
