/// Waits for another process.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_WAITING_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_WAITING_HPP

#include <chrono>
#include <functional>
#include <thread>

namespace imageposition::test {

/// Returns false if the condition does not become true in time.
inline bool becomesTrue(const std::function<bool()> &condition) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline)
      return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

} // namespace imageposition::test

#endif
