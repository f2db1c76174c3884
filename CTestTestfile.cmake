# `ctest` at the root runs the tests of the default preset, once that is configured.
if(EXISTS "build/default/CTestTestfile.cmake")
    subdirs("build/default")
endif()
