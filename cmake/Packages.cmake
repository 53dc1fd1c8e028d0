# cpack makes three Debian packages of a Linux build and one zip archive of a Windows build, in the folder packages.
#
# Times inside the packages are SOURCE_DATE_EPOCH or, where that is not set, the time of the last commit.

set(CPACK_PACKAGE_NAME ImportDataModel)
set(CPACK_PACKAGE_VENDOR "ImportDataModel maintainers")
set(CPACK_PACKAGE_CONTACT "ImportDataModel maintainers <maintainers@importdatamodel.invalid>") # there is no address
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Diagnostic descriptions of control units in memory")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_COMPONENTS_ALL Runtime Development ConsoleImporter)
set(CPACK_STRIP_FILES ON)
set(CPACK_THREADS 2)

execute_process(COMMAND git log -1 --format=%ct WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    OUTPUT_VARIABLE commitTime OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_BINARY_DIR}/PackageTime.cmake")
file(CONFIGURE OUTPUT "${CPACK_PROJECT_CONFIG_FILE}" CONTENT [[
set(ENV{TZ} UTC)
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH} AND NOT "@commitTime@" STREQUAL "")
    set(ENV{SOURCE_DATE_EPOCH} "@commitTime@")
endif()
]] @ONLY)

if(WIN32)
    include(packages/Zip)
else()
    include(packages/Debian)
endif()
include(CPack)

# Builds the packages twice in different folders and compares the bytes. Slow.
if(IMPORTDAME_REPRODUCIBLE)
    cmake_path(GET PROJECT_BINARY_DIR FILENAME preset)
    add_custom_target(check-reproducible
        COMMAND "${CMAKE_CURRENT_LIST_DIR}/packages/check-reproducible" "${PROJECT_SOURCE_DIR}" "${preset}"
        USES_TERMINAL VERBATIM)
endif()
