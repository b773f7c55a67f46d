#import "ItemConformance.h"

#include <map>
#include <objc/runtime.h>
#include <utility>

namespace imageposition {

bool conforms(id item, Protocol *protocol) {
  static const SEL kAsk = @selector(conformsToProtocol:);
  static const IMP kInherited = class_getMethodImplementation([NSObject class], kAsk);
  static std::map<std::pair<Class, Protocol *>, bool> answers;
  const Class type = object_getClass(item);
  // A class that decides for itself may change its mind.
  if (class_getMethodImplementation(type, kAsk) != kInherited)
    return [item conformsToProtocol:protocol];
  const auto found = answers.find({type, protocol});
  if (found != answers.end())
    return found->second;
  return answers[{type, protocol}] = [item conformsToProtocol:protocol];
}

} // namespace imageposition
