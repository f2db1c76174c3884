# Finds GNUstep and defines `gnustep_gui`, which carries the flags and libraries of its Foundation and AppKit.
# GNUstep_FOUND says whether it was found. Include this before enabling Objective-C: g++ compiles it whatever compiler
# the core is built with, because GNUstep on this runtime needs GCC's exceptions.

find_program(GNUSTEP_CONFIG gnustep-config)
find_library(GNUSTEP_GUI_LIBRARY gnustep-gui)
find_library(PREFERENCE_PANES_LIBRARY PreferencePanes)
set(GNUstep_FOUND FALSE)
if(NOT GNUSTEP_CONFIG OR NOT GNUSTEP_GUI_LIBRARY OR NOT PREFERENCE_PANES_LIBRARY)
    return()
endif()
set(GNUstep_FOUND TRUE)

find_program(CMAKE_OBJC_COMPILER gcc REQUIRED)
find_program(CMAKE_OBJCXX_COMPILER g++ REQUIRED)

# Only GCC brings Objective-C's own headers; other tools that read these sources must be given their path.
execute_process(COMMAND ${CMAKE_OBJC_COMPILER} -print-file-name=include
                OUTPUT_VARIABLE objc_headers OUTPUT_STRIP_TRAILING_WHITESPACE)

execute_process(COMMAND ${GNUSTEP_CONFIG} --objc-flags OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${GNUSTEP_CONFIG} --gui-libs OUTPUT_VARIABLE libraries OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT flags OR NOT libraries)
    message(FATAL_ERROR "${GNUSTEP_CONFIG} prints no flags; it needs make")
endif()
execute_process(COMMAND ${GNUSTEP_CONFIG} --variable=GNUSTEP_SYSTEM_HEADERS
                OUTPUT_VARIABLE GNUSTEP_HEADERS OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${GNUSTEP_CONFIG} --variable=GNUSTEP_CONFIG_FILE
                OUTPUT_VARIABLE GNUSTEP_CONFIGURATION OUTPUT_STRIP_TRAILING_WHITESPACE)
separate_arguments(flags)
separate_arguments(libraries)

# CMake decides on dependency files, optimisation and warnings; GNUstep's headers count as the system's.
list(FILTER flags EXCLUDE REGEX "^-(MMD|MP|g|O2|Wall|I.*)$")
list(FILTER libraries INCLUDE REGEX "^-(l|L/usr|shared-libgcc|pthread)")

add_library(gnustep_gui INTERFACE)
target_compile_options(gnustep_gui INTERFACE
    "$<$<COMPILE_LANGUAGE:OBJC,OBJCXX>:${flags};SHELL:-idirafter ${objc_headers}>"
    $<$<COMPILE_LANGUAGE:OBJC>:-std=c11>
    "$<$<COMPILE_LANGUAGE:OBJCXX>:-std=c++20;-fobjc-call-cxx-cdtors>")
target_include_directories(gnustep_gui SYSTEM INTERFACE "${GNUSTEP_HEADERS}")
target_link_libraries(gnustep_gui INTERFACE ${libraries})

# What the adapters and the plug-in link, whatever the system.
add_library(application_kit ALIAS gnustep_gui)
add_library(preference_panes INTERFACE)
target_link_libraries(preference_panes INTERFACE ${PREFERENCE_PANES_LIBRARY})
