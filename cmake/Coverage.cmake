# check-coverage: runs the tests and says what they reached; fails below what they have to reach.

set(profileDir "${PROJECT_BINARY_DIR}/coverage")
set(programs)
foreach(name ImportDataModelTests ImportDataModelOutOfMemoryTests MemoryTests PlatformTests ConsoleImportHostTests
        OdxImporterTests SqliteBackendTests ConsoleImportTests ConsoleImport
        ImportDataModel ImportDataModelFailingAllocation)
    if(TARGET ${name})
        list(APPEND programs "$<TARGET_FILE:${name}>")
    endif()
endforeach()

add_custom_target(check-coverage
    COMMAND "${CMAKE_COMMAND}" -E rm -rf "${profileDir}"
    COMMAND "${CMAKE_COMMAND}" -E env "LLVM_PROFILE_FILE=${profileDir}/%p-%m.profraw"
        "${CMAKE_CTEST_COMMAND}" --output-on-failure -R "Tests$|Process$" -E Layout
    COMMAND python3 "${PROJECT_SOURCE_DIR}/tests/coverage/check_coverage.py" "${PROJECT_SOURCE_DIR}" "${profileDir}"
        ${programs}
    WORKING_DIRECTORY "${PROJECT_BINARY_DIR}" USES_TERMINAL VERBATIM)
