/// Assertions for fuzzers.
#ifndef IMAGEPOSITION_FUZZ_CHECK_HPP
#define IMAGEPOSITION_FUZZ_CHECK_HPP

#include <cstdio>
#include <cstdlib>
#include <string>

namespace imageposition::fuzz {

/// If the property does not hold, prints it and aborts; libFuzzer then saves the input as a file.
inline void check(bool holds, const std::string &property) {
  if (holds)
    return;
  std::fprintf(stderr, "Does not hold: %s\n", property.c_str());
  std::abort();
}

/// The same for two equal strings; prints both if they differ.
inline void checkSame(const std::string &actual, const std::string &expected,
                      const std::string &property) {
  check(actual == expected, property + "\n  is:        " + actual + "\n  should be: " + expected);
}

} // namespace imageposition::fuzz

#endif
