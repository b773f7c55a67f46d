/// A log of events, one line each. A test's items, print settings and settings write to one
/// journal, so that the test sees the order of events across objects.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_JOURNAL_HPP
#define IMAGEPOSITION_TESTS_SUPPORT_JOURNAL_HPP

#include <string>
#include <utility>
#include <vector>

namespace imageposition::test {

class Journal {
public:
  void add(std::string line) { lines_.push_back(std::move(line)); }
  const std::vector<std::string> &lines() const { return lines_; }
  void clear() { lines_.clear(); }

  /// Returns the lines so far and clears the journal.
  std::vector<std::string> take() { return std::exchange(lines_, {}); }

private:
  std::vector<std::string> lines_;
};

} // namespace imageposition::test

#endif
