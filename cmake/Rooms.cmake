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

# The objects of a room's sources, once for each variant of the build.
#   room_objects(<name> <target> SOURCES <file>... USES <room>... VARIANT <interface target>)
function(room_objects name target)
    cmake_parse_arguments(ROOM "" "VARIANT" "SOURCES;USES" ${ARGN})
    list(TRANSFORM ROOM_SOURCES PREPEND "${PROJECT_SOURCE_DIR}/src/${name}/")
    list(TRANSFORM ROOM_USES APPEND _headers)
    add_library(${target} OBJECT ${ROOM_SOURCES})
    target_include_directories(${target} PRIVATE "${ROOM_INCLUDES}/inside/${name}")
    target_link_libraries(${target} PRIVATE project_warnings ${ROOM_VARIANT} ${ROOM_USES})
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()
