# A room is a folder of src/. What it offers to others are its public headers, and it sees the public headers of
# the rooms that it uses, and no others: an include that the house does not allow finds no file.

set(ROOM_INCLUDES "${PROJECT_BINARY_DIR}/include")

# The target <name>_headers stands for a room's public headers.
#   room_headers(<name> PUBLIC <header>... USES <room>...)
function(room_headers name)
    cmake_parse_arguments(ROOM "" "" "PUBLIC;USES" ${ARGN})
    file(MAKE_DIRECTORY "${ROOM_INCLUDES}/inside/${name}" "${ROOM_INCLUDES}/offered/${name}/${name}")
    file(CREATE_LINK "${PROJECT_SOURCE_DIR}/src/${name}" "${ROOM_INCLUDES}/inside/${name}/${name}" SYMBOLIC)
    foreach(header IN LISTS ROOM_PUBLIC)
        file(CREATE_LINK "${PROJECT_SOURCE_DIR}/src/${name}/${header}"
             "${ROOM_INCLUDES}/offered/${name}/${name}/${header}" SYMBOLIC)
    endforeach()
    add_library(${name}_headers INTERFACE)
    target_include_directories(${name}_headers INTERFACE "${ROOM_INCLUDES}/offered/${name}")
    list(TRANSFORM ROOM_USES APPEND _headers)
    target_link_libraries(${name}_headers INTERFACE ${ROOM_USES})
endfunction()

# The target <name>_room holds the objects of a room's sources.
#   room_objects(<name> USES <room>... EXCEPT <source>...)
function(room_objects name)
    cmake_parse_arguments(ROOM "" "" "USES;EXCEPT" ${ARGN})
    set(folder "${PROJECT_SOURCE_DIR}/src/${name}")
    file(GLOB sources CONFIGURE_DEPENDS "${folder}/*.cpp")
    foreach(source IN LISTS ROOM_EXCEPT)
        list(REMOVE_ITEM sources "${folder}/${source}")
    endforeach()
    add_library(${name}_room OBJECT ${sources})
    target_include_directories(${name}_room PRIVATE "${ROOM_INCLUDES}/inside/${name}")
    list(TRANSFORM ROOM_USES APPEND _headers)
    target_link_libraries(${name}_room PRIVATE project_options ${ROOM_USES})
    set_target_properties(${name}_room PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()
