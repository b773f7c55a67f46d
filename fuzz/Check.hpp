/// What a fuzzer does when a property does not hold.
#ifndef IMAGEPOSITION_FUZZ_CHECK_HPP
#define IMAGEPOSITION_FUZZ_CHECK_HPP

#include <cstdio>
#include <cstdlib>
#include <string>

namespace imageposition::fuzz {

/// Says which property it was and ends the run; the fuzzer then keeps the input as a file.
inline void check(bool holds, const std::string &property) {
  if (holds)
    return;
  std::fprintf(stderr, "Does not hold: %s\n", property.c_str());
  std::abort();
}

/// The same for two texts, which are shown.
inline void checkSame(const std::string &actual, const std::string &expected,
                      const std::string &property) {
  check(actual == expected, property + "\n  is:        " + actual + "\n  should be: " + expected);
}

} // namespace imageposition::fuzz

#endif
