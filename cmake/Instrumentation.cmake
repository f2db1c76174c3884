# What every file of this build is compiled with, so that its tests show more.

if(SORTERPANE_CHECKS STREQUAL "coverage")
    # One thread runs here: waiting for another to make a static object is no branch that a test could reach.
    add_compile_options(--coverage "$<$<COMPILE_LANGUAGE:CXX,OBJCXX>:-fno-threadsafe-statics>")
    add_link_options(--coverage)
    # Headers are included through links; the report knows them by where they lie.
    file(GLOB rooms RELATIVE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/src/*")
    foreach(room IN LISTS rooms)
        foreach(way IN ITEMS inside offered)
            add_compile_options("-fprofile-prefix-map=${ROOM_INCLUDES}/${way}/${room}=${PROJECT_SOURCE_DIR}/src")
        endforeach()
    endforeach()
    file(GLOB rooms RELATIVE "${PROJECT_SOURCE_DIR}/src/appkit" "${PROJECT_SOURCE_DIR}/src/appkit/*")
    foreach(room IN LISTS rooms)
        add_compile_options("-fprofile-prefix-map=${ROOM_INCLUDES}/inside/appkit_${room}=${PROJECT_SOURCE_DIR}/src")
    endforeach()
elseif(SORTERPANE_CHECKS STREQUAL "sanitizers")
    set(sanitizers -fsanitize=address,undefined,float-cast-overflow)
    add_compile_options(${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(${sanitizers})
    # What the sanitizers cannot see inside the standard library, such as the value of an optional that has none.
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
elseif(NOT SORTERPANE_CHECKS STREQUAL "none")
    message(FATAL_ERROR "SORTERPANE_CHECKS is none of none, sanitizers, coverage: ${SORTERPANE_CHECKS}")
endif()

if(SORTERPANE_32_BIT)
    add_compile_options(-m32)
    add_link_options(-m32)
endif()
