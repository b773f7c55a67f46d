# MorvaADPImagePosition.plugin, in the bundle layout of GNUstep or macOS.
set(IMAGEPOSITION_LANGUAGES en de fr es it ja zh-Hans)
set(IMAGEPOSITION_BUNDLE "${PROJECT_BINARY_DIR}/MorvaADPImagePosition.plugin")

add_library(MorvaADPImagePosition MODULE)
target_link_libraries(MorvaADPImagePosition PRIVATE imageposition_classes)

if(APPLE)
  include(PluginBundleApple)
  return()
endif()

set(exported "${PROJECT_SOURCE_DIR}/plugin/exported.linux.map")
target_link_options(MorvaADPImagePosition PRIVATE "LINKER:--version-script=${exported}")
set_target_properties(MorvaADPImagePosition PROPERTIES
  PREFIX "" SUFFIX "" LIBRARY_OUTPUT_DIRECTORY "${IMAGEPOSITION_BUNDLE}" LINK_DEPENDS "${exported}")

# One command per resource, so that the next build copies a changed one.
set(bundle_resources)
function(imageposition_bundle_resource source relative_target)
  set(target "${IMAGEPOSITION_BUNDLE}/Resources/${relative_target}")
  add_custom_command(OUTPUT "${target}"
    COMMAND "${CMAKE_COMMAND}" -E copy "${source}" "${target}"
    DEPENDS "${source}" VERBATIM)
  set(bundle_resources ${bundle_resources} "${target}" PARENT_SCOPE)
endfunction()

imageposition_bundle_resource("${PROJECT_SOURCE_DIR}/plugin/Info-gnustep.plist" Info-gnustep.plist)
foreach(resource SettingInfo.plist ConstraintInfo.plist ImagePositionAdjustPrint.xib)
  imageposition_bundle_resource("${PROJECT_SOURCE_DIR}/resources/${resource}" "${resource}")
endforeach()
foreach(language ${IMAGEPOSITION_LANGUAGES})
  imageposition_bundle_resource(
    "${PROJECT_SOURCE_DIR}/resources/${language}.lproj/Localizable.strings"
    "${language}.lproj/Localizable.strings")
endforeach()
add_custom_target(plugin_resources ALL DEPENDS ${bundle_resources})
add_dependencies(MorvaADPImagePosition plugin_resources)
