/// A queue "office" on a private CUPS server.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_OFFICEQUEUE_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_OFFICEQUEUE_HPP

#include "PrivateCups.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace imageposition::test {

/// `words` are further arguments of lpadmin.
inline void addOfficeQueue(const PrivateCups &cups, const std::vector<std::string> &words = {}) {
  ASSERT_TRUE(cups.isRunning()) << cups.log();
  std::vector<std::string> all{"lpadmin", "-p",
                               "office",  "-E",
                               "-v",      "file:///dev/null",
                               "-P",      IMAGEPOSITION_SAMPLES "/duplex-shift.ppd"};
  all.insert(all.end(), words.begin(), words.end());
  const ProcessResult added = cups.run(all);
  ASSERT_EQ(added.status, 0) << testing::PrintToString(added);
}

/// A fixture with the queue. All its tests share one CUPS server; each gets a new queue.
template <typename Fixture> class WithOfficeQueue : public Fixture {
protected:
  static void SetUpTestSuite() { cups = std::make_unique<PrivateCups>(); }
  static void TearDownTestSuite() { cups.reset(); }
  void SetUp() override { addOfficeQueue(*cups); }
  void TearDown() override { cups->run({"lpadmin", "-x", "office"}); }

  static inline std::unique_ptr<PrivateCups> cups;
};

} // namespace imageposition::test

#endif
