#import "settings/ItemConformance.h"

#include <objc/runtime.h>

namespace imageposition {

bool ItemConformance::conforms(id item, Protocol *protocol) {
  static const SEL kAsk = @selector(conformsToProtocol:);
  static const IMP kInherited = class_getMethodImplementation([NSObject class], kAsk);
  const Class type = object_getClass(item);
  if (class_getMethodImplementation(type, kAsk) != kInherited)
    return [item conformsToProtocol:protocol];
  for (const Answer &answer : answers_) {
    if (answer.type == type && answer.protocol == protocol)
      return answer.conforms;
  }
  answers_.push_back({type, protocol, static_cast<bool>([item conformsToProtocol:protocol])});
  return answers_.back().conforms;
}

} // namespace imageposition
