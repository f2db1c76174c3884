# Sets properties on every test of this build, wherever it was added.

# The names of the tests that a folder and those below it add.
function(tests_below folder result)
    get_property(names DIRECTORY "${folder}" PROPERTY TESTS)
    get_property(subfolders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS subfolders)
        tests_below("${subfolder}" more)
        list(APPEND names ${more})
    endforeach()
    set(${result} "${names}" PARENT_SCOPE)
endfunction()

# Makes all tests below the folder require those fixtures and run in an environment with those modifications. CMake can
# set a test's properties only in the test's own folder, but CTest reads this file last and knows all tests. A later call
# wins.
function(every_test_below folder fixtures environment)
    tests_below("${folder}" names)
    list(JOIN names "\" \"" names)
    cmake_path(GET folder FILENAME name)
    set(file "${CMAKE_CURRENT_BINARY_DIR}/EveryTestIn-${name}.cmake")
    file(WRITE "${file}" "set_tests_properties(\"${names}\" PROPERTIES FIXTURES_REQUIRED \"${fixtures}\" "
         "ENVIRONMENT_MODIFICATION \"${environment}\")\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${file}")
endfunction()
