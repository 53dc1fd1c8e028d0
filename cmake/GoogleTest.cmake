# Builds GoogleTest from its sources with the compiler and the flags of the tests, sanitizers included.
# Targets: GTest::gtest, GTest::gmock.
include_guard(GLOBAL)

set(IMPORTDAME_GOOGLETEST_SOURCE_DIR "/usr/src/googletest" CACHE PATH "The sources of GoogleTest")
if(NOT EXISTS "${IMPORTDAME_GOOGLETEST_SOURCE_DIR}/CMakeLists.txt")
    message(FATAL_ERROR "No GoogleTest in ${IMPORTDAME_GOOGLETEST_SOURCE_DIR}: install the package googletest or set "
        "IMPORTDAME_GOOGLETEST_SOURCE_DIR.")
endif()

block()
    set(INSTALL_GTEST OFF)
    set(BUILD_SHARED_LIBS OFF)
    add_subdirectory("${IMPORTDAME_GOOGLETEST_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
endblock()

foreach(name gtest gmock)
    if(NOT TARGET GTest::${name})
        add_library(GTest::${name} ALIAS ${name})
    endif()
endforeach()
