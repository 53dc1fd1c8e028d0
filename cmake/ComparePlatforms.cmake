# cmake -DSOURCE_DIR=... -DLINUX_BUILD=... -DWINDOWS_BUILD=... -DFOLDER=... -P ComparePlatforms.cmake
#
# Has the console importers of two build folders import the same inputs under the same names at the same time, and compares
# everything that comes of it byte by byte: exit codes, databases, dumps, logs, diagnostics, listings. Only the duration in the
# summary may differ.

cmake_minimum_required(VERSION 3.25)

set(runner "${SOURCE_DIR}/cmake/wine-run" "${WINDOWS_BUILD}/wine")
set(programs "${LINUX_BUILD}/bin/ConsoleImport" "${WINDOWS_BUILD}/bin/ConsoleImport.exe")
foreach(program ${programs})
    if(NOT EXISTS "${program}")
        message(FATAL_ERROR "${program} is not built.")
    endif()
endforeach()

file(GLOB inputs RELATIVE "${SOURCE_DIR}/samples" "${SOURCE_DIR}/samples/broken/*.odx-d")
list(PREPEND inputs coolant-pump.pdx coolant-pump)

file(REMOVE_RECURSE "${FOLDER}")
foreach(platform linux windows)
    file(MAKE_DIRECTORY "${FOLDER}/${platform}")
    file(COPY "${SOURCE_DIR}/samples/broken" "${SOURCE_DIR}/samples/coolant-pump"
        "${LINUX_BUILD}/samples/coolant-pump.pdx" DESTINATION "${FOLDER}/${platform}")
endforeach()

# run(<platform> <name> <argument>...): leaves the outputs in files and the exit code in a file of its own.
function(run platform name)
    set(command "${LINUX_BUILD}/bin/ConsoleImport")
    if(platform STREQUAL windows)
        set(command ${runner} "${WINDOWS_BUILD}/bin/ConsoleImport.exe")
    endif()
    execute_process(
        COMMAND "${CMAKE_COMMAND}" -E env --unset=NO_COLOR SOURCE_DATE_EPOCH=1700000000 ${command} ${ARGN}
        WORKING_DIRECTORY "${FOLDER}/${platform}" RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    file(WRITE "${FOLDER}/${platform}/${name}.code" "${result}\n")
    set(log)
    if(EXISTS "${FOLDER}/${platform}/${name}.log")
        file(READ "${FOLDER}/${platform}/${name}.log" log)
    endif()
    foreach(output out err log)
        string(REGEX REPLACE "(\\.sqlite \\([^)]*), [0-9.]+ [a-z]+\\)" "\\1)" text "${${output}}")
        file(WRITE "${FOLDER}/${platform}/${name}.${output}" "${text}")
    endforeach()
endfunction()

set(differences 0)
set(compared 0)
set(databases 0)
foreach(input ${inputs})
    get_filename_component(name "${input}" NAME)
    foreach(platform linux windows)
        run(${platform} ${name} import ${input} --output ${name}.sqlite --diagnostics json --dump ${name}.dump
            --log ${name}.log --progress never)
        if(name MATCHES "^coolant-pump")
            run(${platform} ${name}.list list ${input})
            run(${platform} ${name}.text import ${input} --output ${name}.text.sqlite --progress never)
        endif()
    endforeach()
endforeach()

foreach(platform linux windows)
    file(GLOB results RELATIVE "${FOLDER}/${platform}" "${FOLDER}/${platform}/*.*")
    list(FILTER results EXCLUDE REGEX "\\.pdx$")
    list(SORT results)
    set(${platform}Results "${results}")
endforeach()
foreach(file ${linuxResults} ${windowsResults})
    if(NOT file IN_LIST linuxResults OR NOT file IN_LIST windowsResults)
        message(FATAL_ERROR "Only one of the platforms wrote ${file}: see ${FOLDER}.")
    endif()
endforeach()
foreach(file ${linuxResults})
    math(EXPR compared "${compared} + 1")
    if(file MATCHES "\\.sqlite$")
        math(EXPR databases "${databases} + 1")
    endif()
    file(SHA256 "${FOLDER}/linux/${file}" one)
    file(SHA256 "${FOLDER}/windows/${file}" other)
    if(NOT one STREQUAL other)
        math(EXPR differences "${differences} + 1")
        message(SEND_ERROR "${FOLDER}/linux/${file} and ${FOLDER}/windows/${file} differ.")
    endif()
endforeach()

file(READ "${FOLDER}/linux/coolant-pump.pdx.code" code)
file(SIZE "${FOLDER}/linux/coolant-pump.pdx.dump" dumpSize)
if(NOT code STREQUAL "0\n" OR dumpSize LESS 1000 OR databases LESS 50)
    message(FATAL_ERROR "The imports did not do what they should: see ${FOLDER}.")
endif()
list(LENGTH inputs inputCount)
message(STATUS "${inputCount} inputs, ${compared} files compared, ${databases} databases among them, ${differences} differ")
