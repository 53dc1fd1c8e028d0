# Builds a host that takes the project into its build and replaces the two platform libraries.
include("${CMAKE_CURRENT_LIST_DIR}/Common.cmake")
build_with_cmake("${CMAKE_CURRENT_LIST_DIR}/subdirectory" "-DIMPORTDAME_SOURCE_DIR=${PROJECT_FOLDER}")
if(IS_WINDOWS)
    check_consumer("${WORK_FOLDER}/bin/consumer.exe")
else()
    check_consumer("${WORK_FOLDER}/bin/consumer")
endif()
