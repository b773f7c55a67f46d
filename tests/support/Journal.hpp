/// What happened, in order, as lines of text: items, print settings and settings of a test write
/// into one journal, so that a test sees their order across objects.
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

  /// The lines so far, which the journal forgets.
  std::vector<std::string> take() { return std::exchange(lines_, {}); }

private:
  std::vector<std::string> lines_;
};

} // namespace imageposition::test

#endif
