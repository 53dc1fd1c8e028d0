# Unpacks the archive in a folder of its own and imports the sample in an empty Wine prefix. After "--": a program of Wine.
include("${CMAKE_CURRENT_LIST_DIR}/../consumer/Common.cmake")

file(REMOVE_RECURSE "${WORK_FOLDER}" "${PREFIX}")
file(MAKE_DIRECTORY "${WORK_FOLDER}")
file(GLOB archive "${PACKAGES}/*.zip")
file(ARCHIVE_EXTRACT INPUT "${archive}" DESTINATION "${WORK_FOLDER}")
get_filename_component(name "${archive}" NAME_WE)
file(GLOB unpacked "${WORK_FOLDER}/*")
file(RENAME "${unpacked}" "${PREFIX}")

foreach(file licenses/ImportDataModel.txt licenses/GPL-3.txt licenses/gcc.txt licenses/mingw-w64.txt licenses/pugixml.txt
        licenses/libzip.txt licenses/zlib.txt licenses/sqlite3.txt licenses/CLI11.txt)
    if(NOT EXISTS "${PREFIX}/${file}")
        message(FATAL_ERROR "There is no ${file} in the archive.")
    endif()
endforeach()

file(COPY_FILE "${SAMPLE}" "${WORK_FOLDER}/sample.pdx")
execute_process(COMMAND "${WINE_RUN}" "${WORK_FOLDER}/wine" "${PREFIX}/bin/ConsoleImport.exe" import sample.pdx
    --output sample.sqlite WORKING_DIRECTORY "${WORK_FOLDER}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND sqlite3 "${WORK_FOLDER}/sample.sqlite" "SELECT count(*) FROM trouble_codes" OUTPUT_VARIABLE count
    COMMAND_ERROR_IS_FATAL ANY)
if(NOT count STREQUAL "4\n")
    message(FATAL_ERROR "The database has ${count} trouble codes instead of the 4 of the sample.")
endif()
