// Where the Objective-C++ gets: g++ calls these, and the fuzzer reads the counters.
#include <cstddef>
#include <cstdint>

namespace {

// The fuzzer finds them by the section's name, and clears them before each run.
__attribute__((section("__libfuzzer_extra_counters"), used)) std::uint8_t counters[1 << 16];

} // namespace

extern "C" {

// The linker puts it in place of the fuzzer's own, which only says that it no longer does this.
__attribute__((no_sanitize("address", "undefined", "coverage"))) void
__wrap___sanitizer_cov_trace_pc() {
  const auto place = reinterpret_cast<std::uintptr_t>(__builtin_return_address(0));
  std::uint8_t &counter = counters[(place * 0x9E3779B97F4A7C15U) >> 48];
  counter = static_cast<std::uint8_t>(counter == 255 ? 255 : counter + 1);
}

// Comparisons of floating-point numbers, of which the fuzzer makes nothing.
void __sanitizer_cov_trace_cmpf(float, float) {}
void __sanitizer_cov_trace_cmpd(double, double) {}
}
