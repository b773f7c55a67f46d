# Tries to violate the order of the rooms in a copy of the sources: compiling must fail for a source
# that includes a header of a higher room, and configuring for two rooms that use each other.
#   cmake -DSOURCE=... -DSCRATCH=... -DGENERATOR=... -P RoomsTest.cmake
set(copy "${SCRATCH}/source")
set(build "${SCRATCH}/build")
file(REMOVE_RECURSE "${SCRATCH}")
foreach(part CMakeLists.txt cmake controller host platform plugin resources settings view)
  file(COPY "${SOURCE}/${part}" DESTINATION "${copy}")
endforeach()

# Runs the command and stores its exit status in `result` and its output in `output`.
macro(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
endmacro()
macro(configure)
  run("${CMAKE_COMMAND}" -S "${copy}" -B "${build}" -G "${GENERATOR}"
    -DIMAGEPOSITION_BUILD_TESTS=OFF "-DCMAKE_C_COMPILER=${C_COMPILER}"
    "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}")
endmacro()
macro(build_lowest_room)
  run("${CMAKE_COMMAND}" --build "${build}" --target host_base)
endmacro()

configure()
if(NOT result EQUAL 0)
  message(FATAL_ERROR "The copy cannot be configured:\n${output}")
endif()
build_lowest_room()
if(NOT result EQUAL 0)
  message(FATAL_ERROR "The lowest room does not build in the copy:\n${output}")
endif()

set(file "${copy}/host/core/base/ProgramFolder.cpp")
file(READ "${file}" original)
file(APPEND "${file}" "#include \"JobRequest.hpp\"\n")
build_lowest_room()
if(result EQUAL 0)
  message(FATAL_ERROR "host/core/base can include a header of host/core/job.")
endif()
if(NOT output MATCHES "JobRequest.hpp: No such file")
  message(FATAL_ERROR "The build failed, but not because of the include:\n${output}")
endif()
file(WRITE "${file}" "${original}")

file(APPEND "${copy}/host/core/base/CMakeLists.txt"
  "target_link_libraries(host_base PUBLIC host_job)\n")
configure()
if(result EQUAL 0)
  message(FATAL_ERROR "host/core/base and host/core/job can use each other.")
endif()
if(NOT output MATCHES "cyclic")
  message(FATAL_ERROR "Configuring failed, but not because of the cycle:\n${output}")
endif()
