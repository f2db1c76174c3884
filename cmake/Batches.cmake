# From release 3.29 on, CMake compiles Objective-C's sources in batches too, where earlier ones do so for C++ alone. What
# collides in a batch would then depend on the release.

# Has each source in Objective-C, of every target of that folder and of those below it, compiled as it stands.
function(leave_objective_c_out_of_batches folder)
    get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(sources ${target} SOURCES)
        list(FILTER sources INCLUDE REGEX "\\.mm?$")
        foreach(source IN LISTS sources)
            cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY "${folder}" NORMALIZE)
            set_property(SOURCE "${source}" TARGET_DIRECTORY ${target} PROPERTY SKIP_UNITY_BUILD_INCLUSION ON)
        endforeach()
    endforeach()
    get_property(subfolders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS subfolders)
        leave_objective_c_out_of_batches("${subfolder}")
    endforeach()
endfunction()
