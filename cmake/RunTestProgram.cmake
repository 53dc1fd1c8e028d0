# cmake -P RunTestProgram.cmake -- PROGRAM [ARGUMENT...]
#
# Runs a GoogleTest program and fails unless it says that it ran at least one test and that none failed. The exit code alone
# is not enough: a Windows program whose DLL is missing can end in silence. Fails too when Wine, asked to check the heap,
# reports a block that is freed twice or is none of the heap.

set(command)
set(isCommand FALSE)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE ${last})
    if(isCommand)
        list(APPEND command "${CMAKE_ARGV${index}}")
    elseif(CMAKE_ARGV${index} STREQUAL "--")
        set(isCommand TRUE)
    endif()
endforeach()

execute_process(COMMAND ${command} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors
    ECHO_OUTPUT_VARIABLE ECHO_ERROR_VARIABLE)

if(NOT result EQUAL 0)
    message(FATAL_ERROR "The test program ended with: ${result}")
endif()
if(NOT output MATCHES "\\[  PASSED  \\] [1-9][0-9]* test")
    message(FATAL_ERROR "The test program ran no test.")
endif()
if(errors MATCHES "(warn|err):heap:[^\n]*")
    message(FATAL_ERROR "Wine's heap reports: ${CMAKE_MATCH_0}")
endif()
