// An idle window uses almost no processor time.
#include "WindowFixture.hpp"

#include <fstream>

namespace {

using namespace imageposition::test;

class IdleWindow : public QueueWindow {
protected:
  /// How often the main thread has slept, and so been woken.
  long wakes() const {
    const std::string id = std::to_string(dialogProcess->id());
    std::ifstream status("/proc/" + id + "/task/" + id + "/status");
    const std::string name = "voluntary_ctxt_switches:";
    for (std::string line; std::getline(status, line);)
      if (line.compare(0, name.size(), name) == 0)
        return std::stol(line.substr(name.size()));
    return -1;
  }
};

TEST_F(IdleWindow, WakesOnlyWhenAPrinterChanges) {
  openQueue();
  const auto isIdleForASecond = [&] {
    const long before = wakes();
    std::this_thread::sleep_for(std::chrono::seconds(1));
    return wakes() == before;
  };
  ASSERT_TRUE(becomesTrue(isIdleForASecond));
  constexpr int kSeconds = 10;
  for (int second = 0; second < kSeconds; second++)
    EXPECT_TRUE(isIdleForASecond());
  const long before = wakes();
  cups->run({"lpadmin", "-p", "office", "-D", "Another name"});
  EXPECT_TRUE(becomesTrue([&] { return wakes() != before; }));
}

} // namespace
