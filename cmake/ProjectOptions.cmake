# Flags that every target shares, for C++ and Objective-C++ alike.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_OBJCXX_STANDARD 17)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

add_library(imageposition_options INTERFACE)
target_compile_options(imageposition_options INTERFACE -Wall -Wextra -Wshadow
  "$<$<COMPILE_LANGUAGE:CXX,OBJCXX>:-Wnon-virtual-dtor>")
# Also on a 32-bit processor a file may be larger than 2 GiB, and later than 2038: the calls that tell
# who may change it fail otherwise.
if(NOT APPLE)
  target_compile_definitions(imageposition_options INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64)
endif()
if(APPLE)
  # For systems before 10.9 clang takes the old libstdc++ by itself, which has no C++17.
  target_compile_options(imageposition_options INTERFACE
    "$<$<COMPILE_LANGUAGE:CXX,OBJCXX>:-stdlib=libc++>")
  target_link_options(imageposition_options INTERFACE -stdlib=libc++)
endif()
include(ProjectHardening)
if(IMAGEPOSITION_WARNINGS_AS_ERRORS)
  target_compile_options(imageposition_options INTERFACE -Werror)
endif()

# Plain C++ targets find this folder before any platform header; it refuses the include.
function(imageposition_forbid_foundation target)
  target_include_directories(${target} BEFORE PRIVATE "${PROJECT_SOURCE_DIR}/cmake/no-foundation")
endfunction()
