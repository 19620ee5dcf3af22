# quazo_room(<name> <source>... [LINK <target>...]): a static library, one per room.
function(quazo_room name)
  cmake_parse_arguments(ROOM "" "" "LINK" ${ARGN})
  add_library(${name} STATIC ${ROOM_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PUBLIC quazo_compiler ${ROOM_LINK})
endfunction()
