/// Makes decisions from bytes: the same bytes give the same decisions.
#ifndef IMAGEPOSITION_TESTS_USE_CHOICES_HPP
#define IMAGEPOSITION_TESTS_USE_CHOICES_HPP

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace imageposition::test {

class Choices {
public:
  /// The bytes are borrowed.
  Choices(const std::uint8_t *bytes, std::size_t count) : next_(bytes), end_(bytes + count) {}

  /// Once true, every further decision is 0.
  bool areUsedUp() const { return next_ == end_; }
  unsigned byte() { return areUsedUp() ? 0 : *next_++; }
  /// A number from 0 to `count` - 1; `count` is 1 to 256.
  unsigned below(unsigned count) { return byte() % count; }

  const std::string &of(const std::vector<std::string> &texts) {
    return texts[below(static_cast<unsigned>(texts.size()))];
  }
  /// Nothing in one case of eight.
  std::optional<std::string> perhapsOf(const std::vector<std::string> &texts) {
    return below(8) == 7 ? std::nullopt : std::optional<std::string>(of(texts));
  }

private:
  const std::uint8_t *next_;
  const std::uint8_t *end_;
};

} // namespace imageposition::test

#endif
