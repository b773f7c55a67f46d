# Flags that make bugs harder to exploit: files come from servers, and names from anybody on the
# network. Uses each flag that the compiler and the processor support.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# A non-constant format string is an error in every build.
target_compile_options(imageposition_options INTERFACE -Wformat -Wformat-security
  -Werror=format-security)

foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
  string(MAKE_C_IDENTIFIER "IMAGEPOSITION_HAS${flag}" has_flag)
  check_cxx_compiler_flag(${flag} ${has_flag})
  if(${has_flag})
    target_compile_options(imageposition_options INTERFACE ${flag})
  endif()
endforeach()

# _FORTIFY_SOURCE needs optimisation, and hides errors from the sanitizers.
string(FIND "${CMAKE_CXX_FLAGS}" "-fsanitize" sanitizer_at)
if(sanitizer_at GREATER -1 OR IMAGEPOSITION_BUILD_FUZZERS)
  set(IMAGEPOSITION_SANITIZED TRUE)
else()
  set(IMAGEPOSITION_SANITIZED FALSE)
endif()
if(NOT IMAGEPOSITION_SANITIZED)
  target_compile_options(imageposition_options INTERFACE
    "$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()

if(NOT APPLE)
  foreach(flag -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
    string(MAKE_C_IDENTIFIER "IMAGEPOSITION_LINKS${flag}" has_flag)
    check_linker_flag(CXX ${flag} ${has_flag})
    if(${has_flag})
      target_link_options(imageposition_options INTERFACE ${flag})
    endif()
  endforeach()
endif()
