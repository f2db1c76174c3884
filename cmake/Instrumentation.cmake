# What the core is compiled with for its tests, in every file of this build.

if(SORTERPANE_CHECKS STREQUAL "coverage")
    # One thread runs here: waiting for another to make a static object is no branch that a test could reach.
    add_compile_options(--coverage -fno-threadsafe-statics)
    add_link_options(--coverage)
elseif(SORTERPANE_CHECKS STREQUAL "sanitizers")
    set(sanitizers -fsanitize=address,undefined,float-cast-overflow)
    add_compile_options(${sanitizers} -fno-sanitize-recover=all)
    add_link_options(${sanitizers})
    # What the sanitizers cannot see inside the standard library, such as the value of an optional that has none.
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
else()
    message(FATAL_ERROR "SORTERPANE_CHECKS is neither sanitizers nor coverage: ${SORTERPANE_CHECKS}")
endif()

if(SORTERPANE_32_BIT)
    add_compile_options(-m32)
    add_link_options(-m32)
endif()
