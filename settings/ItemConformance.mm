#import "ItemConformance.h"

#include <map>
#include <objc/runtime.h>
#include <utility>

namespace imageposition {

bool conforms(id item, Protocol *protocol) {
  static const SEL kSelector = @selector(conformsToProtocol:);
  static const IMP kInherited = class_getMethodImplementation([NSObject class], kSelector);
  static std::map<std::pair<Class, Protocol *>, bool> cache;
  const Class type = object_getClass(item);
  // A class that overrides the method may return something else next time.
  if (class_getMethodImplementation(type, kSelector) != kInherited)
    return [item conformsToProtocol:protocol];
  const auto found = cache.find({type, protocol});
  if (found != cache.end())
    return found->second;
  return cache[{type, protocol}] = [item conformsToProtocol:protocol];
}

} // namespace imageposition
