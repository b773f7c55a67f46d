# Libraries that the platform's libraries are linked with for what this program hardly ever does, as
# for images of many formats: mapped when one of their functions is called first, not at the start.
#
# In place of such a library, by its soname and with its functions and their versions, the program is
# linked with a small one (host/delayed/), which the loader then takes for the platform's libraries,
# too. Those are of one release, since their sonames are, and need nothing later of it.
option(IMAGEPOSITION_DELAY_LIBRARIES "Map rarely used libraries when they are needed" ON)

# What stands in VARIABLE afterwards: the sonames that match PATTERN among what LIBRARY is linked with.
function(imageposition_needed library pattern variable)
  execute_process(COMMAND "${CMAKE_READELF}" -dW "${library}" OUTPUT_VARIABLE entries ERROR_QUIET)
  string(REGEX MATCHALL "\\(NEEDED\\)[^\n]*\\[${pattern}\\]" entries "${entries}")
  list(TRANSFORM entries REPLACE ".*\\[" "")
  list(TRANSFORM entries REPLACE "\\]" "")
  set(${variable} "${entries}" PARENT_SCOPE)
endfunction()

# Whether LIBRARY gives others functions only: there is no standing in for data. The linker's own
# names are nobody's.
function(imageposition_gives_functions_only library variable)
  execute_process(COMMAND "${CMAKE_NM}" -D --defined-only "${library}" OUTPUT_VARIABLE symbols)
  string(REGEX REPLACE " (__bss_start|_edata|_end)\n" "\n" symbols "${symbols}")
  if(symbols MATCHES " [^ATWi ] [A-Za-z0-9_]")
    set(${variable} FALSE PARENT_SCOPE)
  else()
    set(${variable} TRUE PARENT_SCOPE)
  endif()
endfunction()

# Writes a line DELAYED(name) for each function of LIBRARY, and a version script of them. Where some
# have a version and others have none, no script says so: has_functions is false then.
function(imageposition_list_functions library names_file script_file)
  execute_process(COMMAND "${CMAKE_NM}" -D --defined-only --with-symbol-versions "${library}"
    OUTPUT_VARIABLE symbols)
  # Those with one @ are kept for programs of earlier days.
  string(REGEX MATCHALL " [TWi] [A-Za-z0-9_]+(@@[A-Za-z0-9_.]+)?\n" symbols "${symbols}")
  list(SORT symbols)
  set(lines "")
  set(versions)
  set(unversioned "")
  foreach(symbol IN LISTS symbols)
    string(REGEX MATCH " [TWi] ([A-Za-z0-9_]+)(@@([A-Za-z0-9_.]+))?" matched "${symbol}")
    set(name "${CMAKE_MATCH_1}")
    set(version "${CMAKE_MATCH_3}")
    if(name MATCHES "^_(init|fini)$")
      continue()
    endif()
    string(APPEND lines "DELAYED(${name})\n")
    if("${version}" STREQUAL "")
      string(APPEND unversioned " ${name};")
    else()
      list(APPEND versions "${version}")
      string(APPEND "names_of_${version}" " ${name};")
    endif()
  endforeach()
  list(REMOVE_DUPLICATES versions)
  set(script "")
  foreach(version IN LISTS versions)
    string(APPEND script "${version} { global:${names_of_${version}} };\n")
  endforeach()
  if(NOT versions AND unversioned)
    set(script "{ global:${unversioned} local: *; };\n")
  elseif(unversioned)
    set(script "")
  endif()
  file(CONFIGURE OUTPUT "${names_file}" CONTENT "${lines}" @ONLY)
  file(CONFIGURE OUTPUT "${script_file}" CONTENT "${script}" @ONLY)
  if(script)
    set(has_functions TRUE PARENT_SCOPE)
  else()
    set(has_functions FALSE PARENT_SCOPE)
  endif()
endfunction()

# The target that stands in for the library of this soname, in VARIABLE; empty where there is no such
# library or nothing can stand in for it.
function(imageposition_stand_in soname variable)
  set(${variable} "" PARENT_SCOPE)
  execute_process(COMMAND "${CMAKE_C_COMPILER}" "-print-file-name=${soname}"
    OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT IS_ABSOLUTE "${library}")
    return()
  endif()
  file(REAL_PATH "${library}" library)
  set(names "${PROJECT_BINARY_DIR}/delayed/${soname}.names")
  set(script "${PROJECT_BINARY_DIR}/delayed/${soname}.versions")
  imageposition_gives_functions_only("${library}" is_possible)
  imageposition_list_functions("${library}" "${names}" "${script}")
  if(NOT is_possible OR NOT has_functions)
    message(STATUS "Not delayed: ${library}")
    return()
  endif()
  # Written again by the next configuration after the library has changed.
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${library}")
  set(target "delayed_${soname}")
  add_library("${target}" SHARED
    "${PROJECT_SOURCE_DIR}/host/delayed/DelayedCalls.S"
    "${PROJECT_SOURCE_DIR}/host/delayed/DelayedLibrary.c")
  set_property(SOURCE "${PROJECT_SOURCE_DIR}/host/delayed/DelayedCalls.S" APPEND PROPERTY
    OBJECT_DEPENDS "${names}")
  set_target_properties("${target}" PROPERTIES
    PREFIX "" OUTPUT_NAME "${soname}" SUFFIX ""
    LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/delayed"
    DELAYED_LIBRARY "${library}"
    C_VISIBILITY_PRESET hidden
    LINK_DEPENDS "${script}")
  target_compile_definitions("${target}" PRIVATE
    "DELAYED_LIBRARY=\"${library}\"" "DELAYED_NAMES=\"${names}\"")
  target_link_libraries("${target}" PRIVATE imageposition_options ${CMAKE_DL_LIBS})
  target_link_options("${target}" PRIVATE "-Wl,--version-script=${script}" -Wl,--hash-style=gnu)
  set(${variable} "${target}" PARENT_SCOPE)
endfunction()

# imageposition_delayed: what a program is linked with that has them mapped later; nothing where the
# processor is another one. IMAGEPOSITION_DELAYED is the list of its targets.
function(imageposition_delay_libraries)
  set(targets)
  imageposition_needed("${GNUSTEP_GUI_LIBRARY}" "lib(MagickCore|tiff|icns)[^]]*" sonames)
  # The last is what the platform's back end is linked with, which it loads when it starts.
  foreach(soname IN LISTS sonames ITEMS libGL.so.1)
    imageposition_stand_in("${soname}" target)
    list(APPEND targets ${target})
  endforeach()
  set(IMAGEPOSITION_DELAYED "${targets}" PARENT_SCOPE)
endfunction()

set(IMAGEPOSITION_DELAYED)
include(CheckCSourceCompiles)
check_c_source_compiles("
#if !defined(__x86_64__) || defined(__ILP32__)
#error DelayedCalls.S is for this processor
#endif
int main(void) { return 0; }" IMAGEPOSITION_CAN_DELAY)
# The sanitizers have to know of every library from the start.
if(IMAGEPOSITION_DELAY_LIBRARIES AND IMAGEPOSITION_CAN_DELAY AND NOT IMAGEPOSITION_SANITIZED)
  enable_language(ASM)
  imageposition_delay_libraries()
endif()
add_library(imageposition_delayed INTERFACE)
if(IMAGEPOSITION_DELAYED)
  # Also where the program itself calls none of them.
  target_link_libraries(imageposition_delayed INTERFACE
    -Wl,--push-state,--no-as-needed ${IMAGEPOSITION_DELAYED} -Wl,--pop-state)
endif()
