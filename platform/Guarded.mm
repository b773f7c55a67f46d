#import "platform/Guarded.h"

#import <AppKit/AppKit.h>

namespace imageposition {

NSDictionary *dictionaryAtPath(NSString *path) {
  if (path == nil)
    return nil;
  // What is raised cannot be looked at here: this runtime's C++ front end hands over no usable
  // object.
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

} // namespace imageposition
