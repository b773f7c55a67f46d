/// Counts the live objects of each class.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_LIVEOBJECTS_H
#define IMAGEPOSITION_TESTS_SUPPORT_LIVEOBJECTS_H

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include <map>
#include <string>

// GNUstep declares these only in debugging builds, but optimised builds have them as well.
extern "C" BOOL GSDebugAllocationActive(BOOL active);
extern "C" int GSDebugAllocationCount(Class type);
extern "C" Class *GSDebugAllocationClassList();

namespace imageposition::test {

/// While an instance lives, GNUstep counts allocations and deallocations.
class LiveObjects {
public:
  LiveObjects() : wasActive_(GSDebugAllocationActive(YES)) {}
  ~LiveObjects() { GSDebugAllocationActive(wasActive_); }
  LiveObjects(const LiveObjects &) = delete;
  LiveObjects &operator=(const LiveObjects &) = delete;

  /// The objects of exactly that class, not of its subclasses. Only differences are meaningful.
  static int count(Class type) { return GSDebugAllocationCount(type); }
  static int count(const std::string &name) {
    return GSDebugAllocationCount(NSClassFromString([NSString stringWithUTF8String:name.c_str()]));
  }
  /// The counts by class name, for all classes that had objects since counting began.
  static std::map<std::string, int> counts() {
    std::map<std::string, int> result;
    Class *const types = GSDebugAllocationClassList();
    for (Class *type = types; *type != Nil; ++type)
      result[class_getName(*type)] = GSDebugAllocationCount(*type);
    NSZoneFree(NSDefaultMallocZone(), types);
    return result;
  }

private:
  BOOL wasActive_;
};

} // namespace imageposition::test

#endif
