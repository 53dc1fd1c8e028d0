# What the built library exports, as names that can be read, one a line.
#
# importdame_read_symbols(<list> <file> <command>...) reads the symbols that a command prints, the last word of every line
# that starts like one of a symbol, and demangles them by way of <file>.
# importdame_interface_of(<list> <library>) keeps the interface: no helpers of the C++ runtime, no template of a header.

function(importdame_read_symbols result file)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[ \t]_Z[A-Za-z0-9_]+" symbols "${output}")
    list(TRANSFORM symbols STRIP)
    list(JOIN symbols "\n" symbols)
    file(WRITE "${file}" "${symbols}\n")
    execute_process(COMMAND "${CXXFILT}" INPUT_FILE "${file}" OUTPUT_FILE "${file}.demangled" COMMAND_ERROR_IS_FATAL ANY)
    file(STRINGS "${file}.demangled" names)
    list(REMOVE_DUPLICATES names)
    list(SORT names)
    set(${result} "${names}" PARENT_SCOPE)
endfunction()

function(importdame_interface_of result library)
    if(LIBRARY_IS_DLL)
        set(command "${OBJDUMP}" -p "${library}")
    else()
        # Weak symbols are what every user of a header has as well.
        set(command sh -c "\"$1\" -D --defined-only \"$2\" | grep -v ' [Wu] '" sh "${NM}" "${library}")
    endif()
    importdame_read_symbols(names "${WORK_FILE}" ${command})
    list(FILTER names INCLUDE REGEX "^((vtable|typeinfo) for )?(ImportDame::(V|Get)|NValueUtil::|VLgAssertException)")
    list(FILTER names EXCLUDE REGEX "^((vtable|typeinfo) for )?ImportDame::VExternalIterator<")
    set(${result} "${names}" PARENT_SCOPE)
endfunction()
