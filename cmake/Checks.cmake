# Targets that check: check-format, check-tidy, check-analyzer, check-cppcheck, compare-platforms.

find_program(IMPORTDAME_CLANG_FORMAT clang-format)
find_program(IMPORTDAME_CLANG_TIDY clang-tidy-19)
find_program(IMPORTDAME_CPPCHECK cppcheck)
find_program(IMPORTDAME_PYTHON python3)
mark_as_advanced(IMPORTDAME_CPPCHECK IMPORTDAME_CLANG_FORMAT IMPORTDAME_CLANG_TIDY IMPORTDAME_PYTHON)

set(patterns)
foreach(folder include src platform importers backends apps examples samples tools bench fuzz tests)
    list(APPEND patterns "${PROJECT_SOURCE_DIR}/${folder}/*.h" "${PROJECT_SOURCE_DIR}/${folder}/*.cpp")
endforeach()
file(GLOB_RECURSE checkedFiles CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}" ${patterns})
list(JOIN checkedFiles "\n" checkedFileLines)
file(WRITE "${PROJECT_BINARY_DIR}/checked-files.txt" "${checkedFileLines}\n")

if(IMPORTDAME_CLANG_FORMAT)
    add_custom_target(check-format
        COMMAND xargs -a "${PROJECT_BINARY_DIR}/checked-files.txt" -P 2 -n 50
            "${IMPORTDAME_CLANG_FORMAT}" --dry-run --Werror
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" VERBATIM)
endif()

if(IMPORTDAME_CLANG_TIDY AND IMPORTDAME_PYTHON)
    add_custom_target(check-tidy
        COMMAND "${IMPORTDAME_PYTHON}" "${PROJECT_SOURCE_DIR}/cmake/run-clang-tidy.py" "${IMPORTDAME_CLANG_TIDY}"
            "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}"
        USES_TERMINAL VERBATIM)
    # clang's static analyzer takes too long for every day. The order of the fields is part of the binary interface.
    add_custom_target(check-analyzer
        COMMAND "${IMPORTDAME_PYTHON}" "${PROJECT_SOURCE_DIR}/cmake/run-clang-tidy.py" "${IMPORTDAME_CLANG_TIDY}"
            "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}"
            "--checks=-*,clang-analyzer-*,-clang-analyzer-optin.performance.Padding"
        USES_TERMINAL VERBATIM)
endif()

# What the sources of an earlier run gave is kept in the build folder.
if(IMPORTDAME_CPPCHECK)
    set(includeFolders)
    foreach(folder include src platform/logging/include platform/crashhandling/include importers/odx/include
            importers/odx/src backends/sqlite/include backends/sqlite/src apps/ConsoleImport)
        list(APPEND includeFolders -I ${folder})
    endforeach()
    file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/cppcheck")
    add_custom_target(check-cppcheck
        COMMAND "${IMPORTDAME_CPPCHECK}" --std=c++20 --enable=warning,performance,portability --error-exitcode=1 --quiet
            -j 2 "--cppcheck-build-dir=${PROJECT_BINARY_DIR}/cppcheck"
            --suppressions-list=cmake/cppcheck-suppressions.txt ${includeFolders}
            src platform importers backends apps
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" USES_TERMINAL VERBATIM)
endif()

# Compares what the console importer of this build makes of the samples with what that of a Windows build makes of them.
set(IMPORTDAME_WINDOWS_BUILD_DIR "${PROJECT_SOURCE_DIR}/build/mingw64-debug" CACHE PATH
    "The Windows build that compare-platforms looks at; it has to be there")
if(IMPORTDAME_BUILD_APPS AND NOT WIN32)
    add_custom_target(compare-platforms
        COMMAND "${CMAKE_COMMAND}" "-DSOURCE_DIR=${PROJECT_SOURCE_DIR}" "-DLINUX_BUILD=${PROJECT_BINARY_DIR}"
            "-DWINDOWS_BUILD=${IMPORTDAME_WINDOWS_BUILD_DIR}" "-DFOLDER=${PROJECT_BINARY_DIR}/compare-platforms"
            -P "${PROJECT_SOURCE_DIR}/cmake/ComparePlatforms.cmake"
        USES_TERMINAL VERBATIM)
    add_dependencies(compare-platforms ConsoleImport SamplePdx)
endif()
