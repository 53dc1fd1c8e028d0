# Builds the consumer against the installed tree with find_package.
include("${CMAKE_CURRENT_LIST_DIR}/Common.cmake")
build_with_cmake("${CMAKE_CURRENT_LIST_DIR}/installed" "-DCMAKE_PREFIX_PATH=${PREFIX}" "-DCMAKE_FIND_ROOT_PATH=${PREFIX}")
if(IS_WINDOWS)
    check_consumer("${WORK_FOLDER}/consumer.exe" "${PREFIX}/bin")
else()
    check_consumer("${WORK_FOLDER}/consumer")
endif()
