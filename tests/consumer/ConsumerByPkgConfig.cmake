# Builds the consumer against the installed tree with what pkg-config says, and nothing else.
include("${CMAKE_CURRENT_LIST_DIR}/Common.cmake")

find_program(pkgConfig pkg-config REQUIRED)
set(ENV{PKG_CONFIG_LIBDIR} "${PREFIX}/lib/pkgconfig")
set(modules ImportDataModel KoLogging KoCustomCrashHandling)
execute_process(COMMAND "${pkgConfig}" --modversion ${modules} OUTPUT_VARIABLE versions COMMAND_ERROR_IS_FATAL ANY)
if(NOT versions STREQUAL "1.0.0\n1.0.0\n1.0.0\n")
    message(FATAL_ERROR "pkg-config tells the versions\n${versions}")
endif()
execute_process(COMMAND "${pkgConfig}" --define-prefix --cflags --libs ${modules} OUTPUT_VARIABLE flags
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags NATIVE_COMMAND "${flags}")

file(MAKE_DIRECTORY "${WORK_FOLDER}")
run("${CXX_COMPILER}" -std=c++20 -I "${CMAKE_CURRENT_LIST_DIR}/installed" "${CMAKE_CURRENT_LIST_DIR}/Consumer.cpp" ${flags}
    -o "${WORK_FOLDER}/consumer.exe")
if(IS_WINDOWS)
    check_consumer("${WORK_FOLDER}/consumer.exe" "${PREFIX}/bin")
else()
    check_consumer("${WORK_FOLDER}/consumer.exe" "${PREFIX}/lib")
endif()
