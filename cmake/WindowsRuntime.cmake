# importdame_needs_windows_runtime(<target>...): puts the C++ runtime beside what the target builds.
#
# The runtime is shared by all DLLs and programs, so that exceptions and texts may cross from one to the other. Its DLLs are
# copied without their debug information (which is twenty times their size).

if(NOT MINGW)
    function(importdame_needs_windows_runtime)
    endfunction()
    return()
endif()

set(runtimeFiles)
foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${name} OUTPUT_VARIABLE source
        OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT IS_ABSOLUTE "${source}")
        find_file(IMPORTDAME_RUNTIME_${name} ${name} PATH_SUFFIXES lib bin NO_CACHE REQUIRED)
        set(source "${IMPORTDAME_RUNTIME_${name}}")
    endif()
    set(copy "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name}")
    add_custom_command(OUTPUT "${copy}"
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
        COMMAND "${CMAKE_STRIP}" --preserve-dates -o "${copy}" "${source}" # keeps the time inside as well
        DEPENDS "${source}" VERBATIM)
    list(APPEND runtimeFiles "${copy}")
endforeach()
add_custom_target(WindowsRuntime DEPENDS ${runtimeFiles})
set(IMPORTDAME_WINDOWS_RUNTIME_FILES ${runtimeFiles})

function(importdame_needs_windows_runtime)
    foreach(target ${ARGN})
        add_dependencies(${target} WindowsRuntime)
    endforeach()
endfunction()
