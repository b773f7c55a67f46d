/// The platform's pool of objects that somebody has finished with.
#ifndef IMAGEPOSITION_HOST_POOL_H
#define IMAGEPOSITION_HOST_POOL_H

#import <Foundation/Foundation.h>

namespace imageposition {

/// For one step of the start: what the step leaves behind is used again by the next. Objects that
/// the step answers must be somebody's own.
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
