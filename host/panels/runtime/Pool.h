/// An autorelease pool for a scope.
#ifndef IMAGEPOSITION_PANELS_RUNTIME_POOL_H
#define IMAGEPOSITION_PANELS_RUNTIME_POOL_H

#import <Foundation/Foundation.h>

namespace imageposition {

/// For one step of the start: the next step reuses the memory that this one frees. An object that
/// the step returns must be retained.
class Pool {
public:
  Pool() = default;
  ~Pool() { [pool_ release]; }
  Pool(const Pool &) = delete;
  Pool &operator=(const Pool &) = delete;

private:
  NSAutoreleasePool *const pool_ = [[NSAutoreleasePool alloc] init];
};

} // namespace imageposition

#endif
