# The bundle in macOS's layout: Contents/, one binary for several processors, a compiled interface
# file. By default it has the architectures that the toolchain still builds; set
# CMAKE_OSX_ARCHITECTURES at the first configuration to choose others.
set(bundle_sources
  "${PROJECT_SOURCE_DIR}/resources/SettingInfo.plist"
  "${PROJECT_SOURCE_DIR}/resources/ConstraintInfo.plist")
target_sources(MorvaADPImagePosition PRIVATE ${bundle_sources})
set_source_files_properties(${bundle_sources} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)

foreach(language ${IMAGEPOSITION_LANGUAGES})
  set(strings "${PROJECT_SOURCE_DIR}/resources/${language}.lproj/Localizable.strings")
  target_sources(MorvaADPImagePosition PRIVATE "${strings}")
  set_source_files_properties("${strings}" PROPERTIES
    MACOSX_PACKAGE_LOCATION "Resources/${language}.lproj")
endforeach()

find_program(IBTOOL ibtool REQUIRED)
set(interface_file "${PROJECT_BINARY_DIR}/ImagePositionAdjustPrint.nib")
add_custom_command(OUTPUT "${interface_file}"
  COMMAND "${IBTOOL}" --compile "${interface_file}" --minimum-deployment-target "${CMAKE_OSX_DEPLOYMENT_TARGET}"
    "${PROJECT_SOURCE_DIR}/resources/ImagePositionAdjustPrint.xib"
  DEPENDS "${PROJECT_SOURCE_DIR}/resources/ImagePositionAdjustPrint.xib" VERBATIM)
target_sources(MorvaADPImagePosition PRIVATE "${interface_file}")
set_source_files_properties("${interface_file}" PROPERTIES
  GENERATED TRUE MACOSX_PACKAGE_LOCATION Resources)

set(exported "${PROJECT_SOURCE_DIR}/plugin/exported.macos.txt")
target_link_options(MorvaADPImagePosition PRIVATE "LINKER:-exported_symbols_list,${exported}")
set_target_properties(MorvaADPImagePosition PROPERTIES
  LINK_DEPENDS "${exported}"
  BUNDLE TRUE
  BUNDLE_EXTENSION plugin
  LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}"
  MACOSX_BUNDLE_INFO_PLIST "${PROJECT_SOURCE_DIR}/plugin/Info.plist.in")
