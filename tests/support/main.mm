// The main program of a test executable. Runs each test in a separate autorelease pool, and prints
// the exception if an Objective-C exception ends a test.
#import <Foundation/Foundation.h>

#import "Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <objc/runtime.h>

#include <iostream>
#include <memory>
#include <optional>

#ifdef IMAGEPOSITION_TEST_APPLICATION
#import <AppKit/AppKit.h>
#endif

namespace {

std::string lastRaised;
void (*raiseAsBefore)(id, SEL);

// g++ cannot inspect an exception that it catches in Objective-C++, so record it when it is raised.
void raiseAndRemember(id exception, SEL selector) {
  using imageposition::test::cxxString;
  lastRaised = cxxString([exception name]) + ": " + cxxString([exception reason]);
  raiseAsBefore(exception, selector);
}

void rememberRaisedExceptions() {
  Method raise = class_getInstanceMethod([NSException class], @selector(raise));
  raiseAsBefore = reinterpret_cast<void (*)(id, SEL)>(
      reinterpret_cast<void *>(method_getImplementation(raise)));
  method_setImplementation(raise,
                           reinterpret_cast<IMP>(reinterpret_cast<void *>(raiseAndRemember)));
}

class PlatformListener : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo &) override {
    lastRaised.clear();
    pool_ = [[NSAutoreleasePool alloc] init];
  }
  void OnTestPartResult(const testing::TestPartResult &result) override {
    const std::string message = result.message() ? result.message() : "";
    if (message.find("nknown C++ exception") != std::string::npos && !lastRaised.empty())
      std::cout << "Raised last: " << lastRaised << std::endl;
  }
  void OnTestEnd(const testing::TestInfo &) override { [pool_ drain]; }

  NSAutoreleasePool *pool_ = nil;
};

} // namespace

int main(int argc, char **argv) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  testing::InitGoogleMock(&argc, argv);
  rememberRaisedExceptions();
#ifdef IMAGEPOSITION_TEST_APPLICATION
  if (!testing::GTEST_FLAG(list_tests))
    [NSApplication sharedApplication];
#endif
  testing::UnitTest::GetInstance()->listeners().Append(new PlatformListener);
  const int result = RUN_ALL_TESTS();
  [pool drain];
  return result;
}
