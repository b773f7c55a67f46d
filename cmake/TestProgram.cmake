# imageposition_test_program(NAME [PLAIN] source...): the executable of some tests. PLAIN sources are
# C++ without Foundation.
#
# Compiling the tests' templates takes longer than running the tests. -O1 halves that and keeps the
# warnings that need optimisation (-ftree-vrp is for -Warray-bounds); -g1 is enough for stack traces.
# The first program of each kind precompiles GoogleTest, and AppKit, for all programs of its kind. The
# preset "debug" does not, and so finds a missing include.
function(imageposition_test_program name)
  cmake_parse_arguments(PARSE_ARGV 1 TEST "PLAIN" "" "")
  set(sources ${TEST_UNPARSED_ARGUMENTS})
  add_executable(${name} ${sources})
  target_compile_options(${name} PRIVATE "$<$<CONFIG:RelWithDebInfo>:-O1;-ftree-vrp;-g1>")

  if(TEST_PLAIN)
    set(first values_tests)
    set(headers <gmock/gmock.h>)
  else()
    set(first settings_tests)
    set(headers <AppKit/AppKit.h> <gmock/gmock.h>)
  endif()
  if(name STREQUAL first)
    target_precompile_headers(${name} PRIVATE ${headers})
  else()
    target_precompile_headers(${name} REUSE_FROM ${first})
  endif()

  # The source of a header shows that the header compiles on its own. A precompiled header serves one
  # language only.
  foreach(source IN LISTS sources)
    cmake_path(REMOVE_EXTENSION source LAST_ONLY OUTPUT_VARIABLE stem)
    file(GLOB header "${stem}.h" "${stem}.hpp")
    if(header OR (NOT TEST_PLAIN AND source MATCHES "\\.cpp$"))
      set_source_files_properties("${source}" PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    endif()
  endforeach()
endfunction()
