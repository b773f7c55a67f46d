# Defaults for macOS builds, to be set before project().
if(NOT CMAKE_HOST_SYSTEM_NAME STREQUAL "Darwin")
  return()
endif()

# The macOS 10.14 SDK dropped i386. Since the macOS 11 SDK, one binary has x86_64 and arm64 code.
execute_process(COMMAND xcrun --sdk macosx --show-sdk-version
  OUTPUT_VARIABLE sdk_version OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
if(sdk_version AND sdk_version VERSION_LESS 10.14)
  set(CMAKE_OSX_ARCHITECTURES "i386;x86_64" CACHE STRING "Processors of the bundle")
elseif(sdk_version VERSION_LESS 11)
  set(CMAKE_OSX_ARCHITECTURES "x86_64" CACHE STRING "Processors of the bundle")
else()
  set(CMAKE_OSX_ARCHITECTURES "x86_64;arm64" CACHE STRING "Processors of the bundle")
endif()
set(CMAKE_OSX_DEPLOYMENT_TARGET 10.7 CACHE STRING "Oldest macOS of the bundle")
