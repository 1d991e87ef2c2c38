# A room is one static library whose own headers are all that it adds to the include path, so that a room can include
# only what its link line names.
function(add_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES" ${ARGN})
  set(door ${PROJECT_BINARY_DIR}/rooms/${name})
  file(MAKE_DIRECTORY ${door})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${door}/${name} SYMBOLIC)
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC ${door})
  target_link_libraries(${name} PRIVATE vellumark_compiler)
endfunction()
