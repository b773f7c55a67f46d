#import "ResourceLoading.h"

namespace imageposition {

NSDictionary *dictionaryAtPath(NSString *path) {
  if (path == nil)
    return nil;
  // The exception itself cannot be inspected: g++ passes no usable object to an Objective-C++
  // handler on this runtime.
  @try {
    return [[[NSDictionary alloc] initWithContentsOfFile:path] autorelease];
  } @catch (id) {
    return nil;
  }
}

bool loadInterfaceFile(NSString *name, id owner) {
  @try {
    return [NSBundle loadNibNamed:name owner:owner];
  } @catch (id) {
    return false;
  }
}

void disconnectActions(NSView *view, id target) {
  if ([view isKindOfClass:[NSControl class]] && [static_cast<NSControl *>(view) target] == target)
    [static_cast<NSControl *>(view) setTarget:nil];
  NSEnumerator *subviews = [[view subviews] objectEnumerator];
  for (NSView *subview = [subviews nextObject]; subview != nil; subview = [subviews nextObject])
    disconnectActions(subview, target);
}

} // namespace imageposition
