# The tests of the core's rooms and of the simulation, in folders that are named after the rooms.
get_property(core_rooms GLOBAL PROPERTY CORE_ROOMS)
set(sources)
foreach(room IN LISTS core_rooms ITEMS simulated)
    file(GLOB room_sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.cpp")
    list(APPEND sources ${room_sources})
endforeach()
add_executable(unit_tests ${sources})
target_link_libraries(unit_tests PRIVATE simulated gtest_main project_options)
foreach(room IN LISTS core_rooms)
    target_include_directories(unit_tests PRIVATE "${ROOM_INCLUDES}/inside/${room}")
endforeach()
target_include_directories(unit_tests PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/helpers")
target_precompile_headers(unit_tests PRIVATE helpers/PaneTest.h)
# In two halves, for two processors: a start of the program for each test would take longer than the tests.
foreach(half IN ITEMS 0 1)
    add_test(NAME UnitTests.${half} COMMAND unit_tests --gtest_brief=1)
    set_tests_properties(UnitTests.${half} PROPERTIES
        LABELS unit
        ENVIRONMENT "GTEST_TOTAL_SHARDS=2;GTEST_SHARD_INDEX=${half}")
endforeach()
