# Which sources in Objective-C are compiled in batches. From release 3.29 on, CMake batches them as it does C++'s, where
# earlier ones leave them alone; what collides in a batch would then depend on the release, so that it is said here.

# Has the target's sources in Objective-C++ compiled in one batch, in a build that has batches. That is quicker, and it
# also makes a plug-in load quicker: for each compiled source, the runtime looks through all classes of the process.
function(batch_objective_cpp target)
    if(NOT CMAKE_UNITY_BUILD)
        return()
    endif()
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.mm$")
    set(includes "")
    foreach(source IN LISTS sources)
        cmake_path(ABSOLUTE_PATH source NORMALIZE)
        string(APPEND includes "#include \"${source}\"\n")
        set_property(SOURCE "${source}" PROPERTY HEADER_FILE_ONLY ON)
    endforeach()
    set(batch "${CMAKE_CURRENT_BINARY_DIR}/${target}_batch.mm")
    file(CONFIGURE OUTPUT "${batch}" CONTENT "${includes}")
    target_sources(${target} PRIVATE "${batch}")
endfunction()

# Has every other source in Objective-C, of every target of that folder and of those below it, compiled as it stands.
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
