# Precompiles AppKit and further system headers for the target's Objective-C++ sources.
#   precompile_appkit(<target> <header>...)
function(precompile_appkit target)
    set(headers AppKit/AppKit.h functional memory optional string vector ${ARGN})
    foreach(header IN LISTS headers)
        target_precompile_headers(${target} PRIVATE "$<$<COMPILE_LANGUAGE:OBJCXX>:<${header}$<ANGLE-R>>")
    endforeach()
endfunction()
