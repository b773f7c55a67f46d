# Configures the project for macOS with this system's compilers and checks the generated build.
file(REMOVE_RECURSE "${BINARY}")
execute_process(
  COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${BINARY}" -G Ninja
    -DCMAKE_SYSTEM_NAME=Darwin -DCMAKE_OSX_SYSROOT=/ -DIBTOOL=/bin/true
    -DCMAKE_OSX_DEPLOYMENT_TARGET=10.9
    "-DCMAKE_C_COMPILER=${C_COMPILER}" -DCMAKE_C_COMPILER_WORKS=ON
    "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" -DCMAKE_CXX_COMPILER_WORKS=ON
    "-DCMAKE_OBJCXX_COMPILER=${CXX_COMPILER}" -DCMAKE_OBJCXX_COMPILER_WORKS=ON
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "The project cannot be configured for macOS:\n${output}")
endif()
file(READ "${BINARY}/build.ninja" build)

function(expect what pattern)
  if(NOT build MATCHES "${pattern}")
    message(SEND_ERROR "macOS: ${what}")
  endif()
endfunction()

set(contents "\nbuild MorvaADPImagePosition.plugin/Contents")
foreach(resource SettingInfo.plist ConstraintInfo.plist ImagePositionAdjustPrint.nib
    en.lproj/Localizable.strings zh-Hans.lproj/Localizable.strings)
  expect("the bundle contains ${resource}" "${contents}/Resources/${resource}: COPY_OSX_CONTENT")
endforeach()
expect("the bundle contains the code" "${contents}/MacOS/MorvaADPImagePosition: ")
expect("the code is linked with libc++, even where clang would use libstdc++"
  "LINK_FLAGS = [^\n]*-stdlib=libc\\+\\+")
expect("only the listed symbols are exported" "-exported_symbols_list")
expect("the interface file is compiled for the oldest supported system"
  "--minimum-deployment-target 10[.]9 ")
file(READ "${BINARY}/MorvaADPImagePosition.plugin/Contents/Info.plist" description)
if(NOT description MATCHES "<key>LSMinimumSystemVersion</key>[^<]*<string>10[.]9</string>")
  message(SEND_ERROR "macOS: the bundle requires the oldest supported system")
endif()
string(REGEX MATCH "${contents}/MacOS/[^\n|]*" inputs "${build}")
if(inputs MATCHES "[.]nib")
  message(SEND_ERROR "macOS: the interface file is not linked")
endif()
