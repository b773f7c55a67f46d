# A room is a folder with one job and one library. Its sources can include headers from the folder
# itself and from the rooms that its target names; there is no other include root. Configuring fails
# if rooms depend on each other in a cycle.
set_property(GLOBAL PROPERTY GLOBAL_DEPENDS_NO_CYCLES ON)

# imageposition_room(NAME [PLAIN] [OBJECT] SOURCES file... [USES target...] [USES_INSIDE target...])
#   PLAIN        C++ that cannot include Foundation or AppKit
#   OBJECT       linked whole, because it has categories, which a linker drops from an archive
#   USES         targets whose headers the room's headers include, and so its users too
#   USES_INSIDE  targets whose headers only its sources include
function(imageposition_room name)
  cmake_parse_arguments(PARSE_ARGV 1 ROOM "PLAIN;OBJECT" "" "SOURCES;USES;USES_INSIDE")
  if(ROOM_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "${name}: unknown arguments ${ROOM_UNPARSED_ARGUMENTS}")
  endif()
  if(ROOM_OBJECT)
    set(kind OBJECT)
  else()
    set(kind STATIC)
  endif()
  add_library(${name} ${kind} ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC imageposition_options ${ROOM_USES} PRIVATE ${ROOM_USES_INSIDE})
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  if(ROOM_PLAIN)
    imageposition_forbid_foundation(${name})
  endif()
endfunction()
