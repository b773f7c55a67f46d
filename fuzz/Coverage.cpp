// Coverage of the Objective-C++ code: code compiled by g++ calls these functions, and libFuzzer
// reads the counters.
#include <cstddef>
#include <cstdint>

namespace {

// libFuzzer finds them by the section's name, and clears them before each run.
__attribute__((section("__libfuzzer_extra_counters"), used)) std::uint8_t counters[1 << 16];

} // namespace

extern "C" {

// The linker uses this instead of libFuzzer's function, which only prints that it is no longer
// supported.
__attribute__((no_sanitize("address", "undefined", "coverage"))) void
__wrap___sanitizer_cov_trace_pc() {
  const auto place = reinterpret_cast<std::uintptr_t>(__builtin_return_address(0));
  std::uint8_t &counter = counters[(place * 0x9E3779B97F4A7C15U) >> 48];
  counter = static_cast<std::uint8_t>(counter == 255 ? 255 : counter + 1);
}

// libFuzzer has no functions for comparisons of floating-point numbers.
void __sanitizer_cov_trace_cmpf(float, float) {}
void __sanitizer_cov_trace_cmpd(double, double) {}
}
