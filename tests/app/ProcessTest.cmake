# cmake -DFOLDER=... -DSAMPLE=... -P ProcessTest.cmake -- PROGRAM [ARGUMENT...]
#
# Runs the console importer as a process: exit codes, names outside ASCII, the variables of the environment.

set(program)
set(isProgram FALSE)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE ${last})
    if(isProgram)
        list(APPEND program "${CMAKE_ARGV${index}}")
    elseif(CMAKE_ARGV${index} STREQUAL "--")
        set(isProgram TRUE)
    endif()
endforeach()
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")

# expect(<exit code> <variable=value>... -- <argument>...): runs the program; sets out and err.
macro(expect code)
    set(environment)
    set(arguments ${ARGN})
    list(FIND arguments "--" at)
    list(SUBLIST arguments 0 ${at} environment)
    math(EXPR at "${at} + 1")
    list(SUBLIST arguments ${at} -1 arguments)
    execute_process(COMMAND "${CMAKE_COMMAND}" -E env --unset=NO_COLOR --unset=SOURCE_DATE_EPOCH ${environment}
        ${program} ${arguments}
        WORKING_DIRECTORY "${FOLDER}" RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result STREQUAL "${code}")
        message(FATAL_ERROR "${arguments}: ended with ${result} instead of ${code}\n${out}\n${err}")
    endif()
endmacro()

function(require_in text part)
    string(FIND "${text}" "${part}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "\"${part}\" is not in:\n${text}")
    endif()
endfunction()

expect(0 -- --version)
require_in("${out}" "ConsoleImport 1.0.0")
expect(2 -- import)
expect(3 -- import missing.pdx --output out.sqlite)
require_in("${err}" "missing.pdx")

# Names outside ASCII, on the command line and in what is said.
file(COPY_FILE "${SAMPLE}" "${FOLDER}/Kühlmittel-水.pdx")
expect(0 -- import Kühlmittel-水.pdx --output größe-水.sqlite)
require_in("${out}" "größe-水.sqlite")
require_in("${err}" "Kühlmittel-水.pdx!")
if(NOT EXISTS "${FOLDER}/größe-水.sqlite")
    message(FATAL_ERROR "The database is not there under its name.")
endif()

# No terminal: no escape sequence.
string(ASCII 27 escape)
foreach(text IN ITEMS "${out}" "${err}")
    string(FIND "${text}" "${escape}" at)
    if(NOT at EQUAL -1)
        message(FATAL_ERROR "A pipe got an escape sequence:\n${text}")
    endif()
endforeach()

# The same input at the same time: the same bytes.
foreach(name one two)
    expect(0 SOURCE_DATE_EPOCH=1700000000 -- import "Kühlmittel-水.pdx" --output ${name}.sqlite --quiet)
    file(SHA256 "${FOLDER}/${name}.sqlite" ${name})
endforeach()
if(NOT one STREQUAL two)
    message(FATAL_ERROR "Two imports of the same input differ: ${one} ${two}")
endif()
expect(0 SOURCE_DATE_EPOCH=1700000001 -- import "Kühlmittel-水.pdx" --output two.sqlite --quiet)
file(SHA256 "${FOLDER}/two.sqlite" two)
if(one STREQUAL two)
    message(FATAL_ERROR "SOURCE_DATE_EPOCH has no effect.")
endif()
expect(2 SOURCE_DATE_EPOCH=yesterday -- import "Kühlmittel-水.pdx" --output two.sqlite)
require_in("${err}" "SOURCE_DATE_EPOCH")
