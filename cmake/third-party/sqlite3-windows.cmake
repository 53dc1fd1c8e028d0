# SQLite's own build puts its sources together into one file.
importdame_fetch_source(sqlite3 source)
find_program(IMPORTDAME_TCLSH NAMES tclsh8.6 tclsh REQUIRED)
mark_as_advanced(IMPORTDAME_TCLSH)
set(folder "${PROJECT_BINARY_DIR}/third-party/sqlite3")
file(MAKE_DIRECTORY "${folder}")
add_custom_command(OUTPUT "${folder}/sqlite3.c" "${folder}/sqlite3.h"
    COMMAND "${CMAKE_COMMAND}" -E env CC=cc sh "${source}/configure" --quiet --disable-tcl --disable-shared
    COMMAND make --quiet sqlite3.c > amalgamation.log
    WORKING_DIRECTORY "${folder}" VERBATIM
    COMMENT "Putting together sqlite3.c")
add_library(sqlite3 STATIC EXCLUDE_FROM_ALL "${folder}/sqlite3.c" "${folder}/sqlite3.h")
target_compile_definitions(sqlite3 PRIVATE SQLITE_THREADSAFE=1 SQLITE_OMIT_LOAD_EXTENSION)
target_compile_options(sqlite3 PRIVATE -O2 -w)
target_include_directories(sqlite3 SYSTEM INTERFACE "${folder}")
add_library(ThirdParty::sqlite3 ALIAS sqlite3)
