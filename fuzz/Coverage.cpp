// What g++ calls at each comparison of floating-point numbers, and clang's fuzzer has no use for.
extern "C" void __sanitizer_cov_trace_cmpf(float, float) {}
extern "C" void __sanitizer_cov_trace_cmpd(double, double) {}
