# Flags for all targets, for C++ and Objective-C++ alike.
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
# Lets stat() on 32-bit processors handle files larger than 2 GiB or dated after 2038. Otherwise the
# checks of who may change a file would fail for them.
if(NOT APPLE)
  target_compile_definitions(imageposition_options INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64)
endif()
if(APPLE)
  # By default, clang uses the old libstdc++, without C++17, for systems before 10.9.
  target_compile_options(imageposition_options INTERFACE
    "$<$<COMPILE_LANGUAGE:CXX,OBJCXX>:-stdlib=libc++>")
  target_link_options(imageposition_options INTERFACE -stdlib=libc++)
endif()
include(ProjectHardening)
if(IMAGEPOSITION_WARNINGS_AS_ERRORS)
  target_compile_options(imageposition_options INTERFACE -Werror)
endif()

# Plain C++ targets find this folder's Foundation and AppKit headers first, which fail to compile.
function(imageposition_forbid_foundation target)
  target_include_directories(${target} BEFORE PRIVATE "${PROJECT_SOURCE_DIR}/cmake/no-foundation")
endfunction()
