# What the core is compiled with for its tests, in every file of this build.

if(SORTERPANE_CHECKS STREQUAL "coverage")
    add_compile_options(--coverage)
    add_link_options(--coverage)
elseif(SORTERPANE_CHECKS STREQUAL "sanitizers")
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all)
    add_link_options(-fsanitize=address,undefined)
else()
    message(FATAL_ERROR "SORTERPANE_CHECKS is neither sanitizers nor coverage: ${SORTERPANE_CHECKS}")
endif()

if(SORTERPANE_32_BIT)
    add_compile_options(-m32)
    add_link_options(-m32)
endif()
