/// A PPD for tests.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_TESTPPD_H
#define IMAGEPOSITION_TESTS_SUPPORT_TESTPPD_H

#include <cups/ppd.h>

#include <string>
#include <vector>

namespace imageposition::test {

/// A small valid PPD plus the given lines, with its default choices marked.
class TestPpd {
public:
  explicit TestPpd(const std::vector<std::string> &lines = {});
  ~TestPpd();
  TestPpd(const TestPpd &) = delete;
  TestPpd &operator=(const TestPpd &) = delete;

  ppd_file_t *get() const { return ppd_; }
  operator ppd_file_t *() const { return ppd_; }

  void mark(const std::string &option, const std::string &choice);

  /// The lines of an option with these choices; the first is the default.
  static std::vector<std::string> option(const std::string &keyword,
                                         const std::vector<std::string> &choices);

private:
  ppd_file_t *ppd_;
};

} // namespace imageposition::test

#endif
