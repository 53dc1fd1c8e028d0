# Compares what the library exports with the committed list; with UPDATE=ON, writes the list anew.

include("${CMAKE_CURRENT_LIST_DIR}/Exports.cmake")

importdame_interface_of(names "${LIBRARY}")
list(LENGTH names count)
if(count LESS 900)
    message(FATAL_ERROR "Only ${count} symbols found in ${LIBRARY}.")
endif()

if(UPDATE)
    list(JOIN names "\n" text)
    file(WRITE "${LIST}" "${text}\n")
    message(STATUS "${count} symbols written to ${LIST}")
    return()
endif()

file(STRINGS "${LIST}" expected)
set(added ${names})
list(REMOVE_ITEM added ${expected})
set(removed ${expected})
list(REMOVE_ITEM removed ${names})
if(added OR removed)
    list(JOIN added "\n  + " added)
    list(JOIN removed "\n  - " removed)
    message(FATAL_ERROR "The interface is not that of ${LIST}; where that is meant, build the target UpdateExports."
        "\n  + ${added}\n  - ${removed}")
endif()
