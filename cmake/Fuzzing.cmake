# Everything is compiled for the fuzzers: with sanitizers, and so that they see where they get.
#
# Clang does not tell this Objective-C runtime of a protocol that a file only asks for, and does not
# catch C++ exceptions in Objective-C++. So the platform's half is compiled by g++, whose sanitizers
# call the same run-time library; clang links.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang" OR NOT CMAKE_OBJCXX_COMPILER_ID STREQUAL "GNU")
  message(FATAL_ERROR "The fuzzers need clang++ for C++ and g++ for Objective-C++: use the preset fuzz.")
endif()
set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
add_compile_options(${sanitizers} "$<$<COMPILE_LANGUAGE:CXX>:-fsanitize=fuzzer-no-link>")
add_link_options(${sanitizers})
