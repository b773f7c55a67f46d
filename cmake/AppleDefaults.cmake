# Before project(): what macOS builds are made for, unless the caller says otherwise.
if(NOT CMAKE_HOST_SYSTEM_NAME STREQUAL "Darwin")
  return()
endif()

# i386 ended with the macOS 10.14 SDK; from then on x86_64 and arm64 are one binary, and arm64 has
# no macOS before 11.
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
