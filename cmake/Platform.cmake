# imageposition_platform: Foundation, AppKit and ApplicationServices.
# imageposition_cups: libcups.
add_library(imageposition_platform INTERFACE)
add_library(imageposition_cups INTERFACE)
target_link_libraries(imageposition_platform INTERFACE imageposition_options)
# For the callback protocol, which the plug-in and the host share.
target_include_directories(imageposition_platform INTERFACE "${PROJECT_SOURCE_DIR}/platform")

if(APPLE)
  target_link_libraries(imageposition_platform INTERFACE
    "-framework ApplicationServices" "-framework AppKit" "-framework Foundation")
  target_link_libraries(imageposition_cups INTERFACE cups)
  return()
endif()

find_path(GNUSTEP_INCLUDE_DIR AppKit/AppKit.h PATH_SUFFIXES GNUstep REQUIRED)
find_library(GNUSTEP_GUI_LIBRARY gnustep-gui REQUIRED)
find_library(GNUSTEP_BASE_LIBRARY gnustep-base REQUIRED)
find_package(Cups REQUIRED)

# As system headers, because their warnings are not ours.
target_include_directories(imageposition_platform INTERFACE
  "${PROJECT_SOURCE_DIR}/platform/stand-in")
target_include_directories(imageposition_platform SYSTEM INTERFACE "${GNUSTEP_INCLUDE_DIR}")
target_compile_definitions(imageposition_platform INTERFACE
  GNUSTEP GNUSTEP_BASE_LIBRARY=1 GNU_GUI_LIBRARY=1 GNU_RUNTIME=1 _NATIVE_OBJC_EXCEPTIONS)
target_compile_options(imageposition_platform INTERFACE
  -fexceptions -fno-strict-aliasing
  "$<$<COMPILE_LANGUAGE:OBJC,OBJCXX>:-fobjc-exceptions;-fconstant-string-class=NSConstantString;-Wno-import>")
target_link_libraries(imageposition_platform INTERFACE
  "${GNUSTEP_GUI_LIBRARY}" "${GNUSTEP_BASE_LIBRARY}" objc)
target_link_libraries(imageposition_cups INTERFACE Cups::Cups)
# CUPS has deprecated its PPD functions, but print-dialog plug-ins are based on them.
target_compile_options(imageposition_cups INTERFACE -Wno-deprecated-declarations)
