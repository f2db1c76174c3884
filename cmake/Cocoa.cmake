# Defines what the adapters and the plug-in link on macOS. The deployment target and the architectures are the preset's.

add_library(application_kit INTERFACE)
foreach(framework IN ITEMS AppKit Carbon CoreServices ServiceManagement)
    target_link_libraries(application_kit INTERFACE "-framework ${framework}")
endforeach()
add_library(preference_panes INTERFACE)
target_link_libraries(preference_panes INTERFACE "-framework PreferencePanes")

set(CMAKE_OBJC_STANDARD 11)
set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
