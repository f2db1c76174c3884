# A room is a folder of src/. It offers its public headers to others, and sees only the public headers of the rooms that
# it uses: an include that is not allowed finds no file.

set(ROOM_INCLUDES "${PROJECT_BINARY_DIR}/include")

# Adds a room, and the rooms that it uses, to the list that write_rooms() writes.
#   declare_room(<name> USES <room>...)
function(declare_room name)
    cmake_parse_arguments(ROOM "" "" "USES" ${ARGN})
    get_property(rooms GLOBAL PROPERTY ROOMS)
    if(NOT name IN_LIST rooms)
        set_property(GLOBAL APPEND PROPERTY ROOMS ${name})
    endif()
    set_property(GLOBAL APPEND PROPERTY ROOMS_USED_BY_${name} ${ROOM_USES})
endfunction()

# Writes the rooms for tests and scripts, a line each: the name, "core" for a room of the pane's core, a colon, and
# the rooms that it uses.
function(write_rooms file)
    get_property(rooms GLOBAL PROPERTY ROOMS)
    get_property(core GLOBAL PROPERTY CORE_ROOMS)
    set(lines)
    foreach(room IN LISTS rooms)
        get_property(used GLOBAL PROPERTY ROOMS_USED_BY_${room})
        list(REMOVE_DUPLICATES used)
        list(JOIN used " " used)
        if(room IN_LIST core)
            string(APPEND lines "${room} core: ${used}\n")
        else()
            string(APPEND lines "${room}: ${used}\n")
        endif()
    endforeach()
    file(CONFIGURE OUTPUT "${file}" CONTENT "${lines}" @ONLY)
endfunction()

# The target <name>_headers stands for a room's public headers.
#   room_headers(<name> PUBLIC <header>... USES <room>...)
function(room_headers name)
    cmake_parse_arguments(ROOM "" "" "PUBLIC;USES" ${ARGN})
    declare_room(${name} USES ${ROOM_USES})
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
# CORE makes it a part of the pane's core, which uses the standard library and nothing else.
#   room_objects(<name> [CORE] USES <room>... EXCEPT <source>...)
function(room_objects name)
    cmake_parse_arguments(ROOM "CORE" "" "USES;EXCEPT" ${ARGN})
    declare_room(${name} USES ${ROOM_USES})
    if(ROOM_CORE)
        set_property(GLOBAL APPEND PROPERTY CORE_ROOMS ${name})
    endif()
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
    # Where only the tests are compiled in batches, each of these sources is compiled as it stands.
    if(ROOM_CORE AND NOT SORTERPANE_BATCHED_TESTS)
        precompile_for_core(${name})
    endif()
endfunction()

# Compiles the library's headers once for all rooms of the core: they take more time than the rooms themselves.
function(precompile_for_core name)
    get_property(core GLOBAL PROPERTY CORE_ROOMS)
    list(GET core 0 first)
    if(name STREQUAL first)
        target_precompile_headers(${name}_room PRIVATE <functional> <map> <memory> <optional> <string> <variant> <vector>)
    else()
        target_precompile_headers(${name}_room REUSE_FROM ${first}_room)
    endif()
endfunction()
