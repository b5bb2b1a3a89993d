# GoogleTest: GTest::gtest, GTest::gtest_main, GTest::gmock and gtest_discover_tests. A cross build
# makes it from Debian's sources, any other build takes the installed library.
if(CMAKE_CROSSCOMPILING)
    set(INSTALL_GTEST OFF)
    add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
else()
    find_package(GTest ${need})
endif()

include(GoogleTest)
# Tests are listed when ctest starts: under Wine that is once and with the server up.
set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)
