# cmake -DEXAMPLE=<path without extension> -P RunExample.cmake -- PROGRAM [ARGUMENT...]
#
# Fails unless the program ends well and writes exactly what stands in <path>.expected.

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

set(input)
if(EXISTS "${EXAMPLE}.in")
    set(input INPUT_FILE "${EXAMPLE}.in")
endif()
execute_process(COMMAND ${command} ${input} RESULT_VARIABLE result OUTPUT_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The example ended with: ${result}")
endif()

string(REPLACE "\r\n" "\n" output "${output}")
file(READ "${EXAMPLE}.expected" expected)
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "The example wrote:\n${output}\ninstead of:\n${expected}")
endif()
