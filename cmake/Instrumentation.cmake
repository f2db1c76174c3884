# The flags that instrument every file of this build.

if(SORTERPANE_CHECKS STREQUAL "coverage")
    # The tests run a single thread, and cannot reach the branch that waits for another one to initialize a static
    # object.
    add_compile_options(--coverage "$<$<COMPILE_LANGUAGE:CXX,OBJCXX>:-fno-threadsafe-statics>")
    add_link_options(--coverage)
    # Headers are included through links; the report needs their real paths.
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
elseif(SORTERPANE_CHECKS MATCHES "^(sanitizers|fuzzing)$")
    set(sanitizers -fsanitize=address,undefined,float-cast-overflow)
    if(SORTERPANE_CHECKS STREQUAL "fuzzing")
        # Reports to the fuzzer which edges of the code an input reaches.
        add_compile_options(-fsanitize=fuzzer-no-link)
    endif()
    add_compile_options(${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(${sanitizers})
    # Checks what the sanitizers cannot see inside the standard library, such as reading an empty optional.
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
elseif(NOT SORTERPANE_CHECKS STREQUAL "none")
    message(FATAL_ERROR "SORTERPANE_CHECKS must be none, sanitizers, fuzzing or coverage, not ${SORTERPANE_CHECKS}")
endif()

if(SORTERPANE_32_BIT)
    add_compile_options(-m32)
    add_link_options(-m32)
endif()

# Has a target run under the sanitizers in an ordinary build as well, compiled with further options; not where branches
# are counted, because the sanitizers add branches of their own.
#   sanitize(<target> <option>...)
function(sanitize target)
    if(NOT SORTERPANE_CHECKS STREQUAL "coverage")
        target_compile_options(
            ${target} PRIVATE -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all ${ARGN})
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    endif()
endfunction()
