include(GoogleTest)

# importdame_add_test_program(<name> [<source>...]): a GoogleTest program that is one test of CTest.
function(importdame_add_test_program name)
    add_executable(${name} ${ARGN} "${PROJECT_SOURCE_DIR}/tests/support/TestMain.cpp")
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${name} PRIVATE GTest::gmock GTest::gtest ImportDataModelSettings)
    target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
    importdame_needs_windows_runtime(${name})
    add_test(NAME ${name} COMMAND "${CMAKE_COMMAND}" -P "${PROJECT_SOURCE_DIR}/cmake/RunTestProgram.cmake" --
        ${CMAKE_CROSSCOMPILING_EMULATOR} "$<TARGET_FILE:${name}>" --gtest_brief=1)
    set(timeout 600)
    if(CMAKE_CROSSCOMPILING_EMULATOR MATCHES "valgrind")
        set(timeout 3600)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${timeout})
endfunction()
