/// An autorelease pool for the enclosing scope.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_TESTPOOL_H
#define IMAGEPOSITION_TESTS_SUPPORT_TESTPOOL_H

#import <Foundation/Foundation.h>

namespace imageposition::test {

class Pool {
public:
  Pool() : pool_([[NSAutoreleasePool alloc] init]) {}
  ~Pool() { [pool_ drain]; }
  Pool(const Pool &) = delete;
  Pool &operator=(const Pool &) = delete;

private:
  NSAutoreleasePool *pool_;
};

} // namespace imageposition::test

#endif
