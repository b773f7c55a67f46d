// Other threads wake the main run loop in each mode of a dialog, and no wake is lost.
#import "RunLoopWake.h"

#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

using namespace imageposition;

namespace {

/// Runs the loop until the condition holds; false after thirty seconds.
bool becomesTrue(NSString *mode, const std::function<bool()> &condition) {
  NSDate *const deadline = [NSDate dateWithTimeIntervalSinceNow:30];
  while (!condition()) {
    if ([deadline timeIntervalSinceNow] < 0)
      return false;
    [[NSRunLoop currentRunLoop] runMode:mode beforeDate:deadline];
  }
  return true;
}

TEST(RunLoopWake, WakesInEachModeOfADialog) {
  for (NSString *mode :
       {NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode}) {
    int calls = 0;
    const RunLoopWake wake([&] { calls++; });
    std::thread(wake.signal()).join();
    EXPECT_TRUE(becomesTrue(mode, [&] { return calls == 1; }));
  }
}

TEST(RunLoopWake, LosesNoWakeWhileSeveralThreadsSignal) {
  constexpr int kThreads = 4, kSignals = 5000;
  std::atomic<int> found{0};
  int seen = 0;
  const RunLoopWake wake([&] { seen = found; });
  const std::function<void()> signal = wake.signal();
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; i++)
    threads.emplace_back([&] {
      for (int j = 0; j < kSignals; j++) {
        found++;
        signal();
      }
    });
  EXPECT_TRUE(becomesTrue(NSModalPanelRunLoopMode, [&] { return seen == kThreads * kSignals; }));
  for (std::thread &thread : threads)
    thread.join();
}

TEST(RunLoopWake, IgnoresSignalsAfterItsDestruction) {
  int calls = 0;
  std::function<void()> signal;
  {
    const RunLoopWake wake([&] { calls++; });
    signal = wake.signal();
    signal();
  }
  signal();
  bool isOther = false;
  const RunLoopWake other([&] { isOther = true; });
  other.signal()();
  EXPECT_TRUE(becomesTrue(NSDefaultRunLoopMode, [&] { return isOther; }));
  EXPECT_EQ(calls, 0);
}

} // namespace
