# Compiles everything for the fuzzers, with sanitizers and coverage instrumentation.
#
# Clang does not register a protocol that a file only uses in @protocol() with GNUstep's Objective-C
# runtime, and does not catch C++ exceptions in Objective-C++. So g++ compiles the Objective-C++ code,
# with sanitizers that call the same run-time library; clang links.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang" OR NOT CMAKE_OBJCXX_COMPILER_ID STREQUAL "GNU")
  message(FATAL_ERROR "The fuzzers need clang++ for C++ and g++ for Objective-C++: use the preset fuzz.")
endif()
set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
add_compile_options(${sanitizers} "$<$<COMPILE_LANGUAGE:CXX>:-fsanitize=fuzzer-no-link>")
add_link_options(${sanitizers})
