# GoogleTest as it is installed or, in a cross build, which finds no installed one, built from the sources
# that Debian's libgtest-dev has.
find_package(GTest QUIET)
if(NOT GTest_FOUND)
    set(DAKSDP_GTEST_SOURCE /usr/src/googletest CACHE PATH "Sources of GoogleTest")
    set(INSTALL_GTEST OFF CACHE BOOL "Install GoogleTest")
    add_subdirectory(${DAKSDP_GTEST_SOURCE} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
    foreach(library gtest gtest_main gmock gmock_main)
        if(NOT TARGET GTest::${library})
            add_library(GTest::${library} ALIAS ${library})
        endif()
    endforeach()
endif()
