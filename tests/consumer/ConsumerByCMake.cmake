# Builds the consumer against the installed tree with find_package.
include("${CMAKE_CURRENT_LIST_DIR}/Common.cmake")
if(IS_WINDOWS) # the toolchain file looks for packages among those of the compiler only
    set(place "-DImportDataModel_DIR=${PREFIX}/lib/cmake/ImportDataModel")
else()
    set(place "-DCMAKE_PREFIX_PATH=${PREFIX}")
endif()
build_with_cmake("${CMAKE_CURRENT_LIST_DIR}/installed" "${place}")
if(IS_WINDOWS)
    check_consumer("${WORK_FOLDER}/consumer.exe" "${PREFIX}/bin")
else()
    check_consumer("${WORK_FOLDER}/consumer")
endif()
