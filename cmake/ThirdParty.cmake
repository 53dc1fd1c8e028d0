# importdame_find_third_party(<library>...) makes the targets ThirdParty::<library>, under the same names on both platforms.
#
#   pugixml libzip sqlite3 cli11   on Linux the packages of the distribution; for Windows static libraries, built here from
#                                  Debian's sources (zlib, which libzip needs, comes from the package libz-mingw-w64-dev)
#   benchmark                      the same
#   rapidcheck                     on Linux only: no target is made for Windows
#
# The sources are fetched at the first configuration into IMPORTDAME_SOURCE_CACHE, outside the build folder, and kept.

if(DEFINED ENV{XDG_CACHE_HOME})
    set(cacheFolder "$ENV{XDG_CACHE_HOME}")
else()
    set(cacheFolder "$ENV{HOME}/.cache")
endif()
set(IMPORTDAME_SOURCE_CACHE "${cacheFolder}/importdatamodel/sources" CACHE PATH "Where fetched sources are kept")
set(importdameThirdPartyFolder "${CMAKE_CURRENT_LIST_DIR}/third-party")

function(importdame_find_third_party)
    foreach(name ${ARGN})
        if(TARGET ThirdParty::${name})
            continue()
        elseif(WIN32)
            include("${importdameThirdPartyFolder}/${name}-windows.cmake")
        else()
            include("${importdameThirdPartyFolder}/${name}-linux.cmake")
        endif()
    endforeach()
endfunction()

# importdame_use_installed_library(<name> <header> [<library>]): a library, or only its headers, that is installed.
function(importdame_use_installed_library name header)
    add_library(ThirdParty::${name} INTERFACE IMPORTED GLOBAL)
    find_path(IMPORTDAME_${name}_INCLUDE_DIR ${header} REQUIRED)
    mark_as_advanced(IMPORTDAME_${name}_INCLUDE_DIR)
    target_include_directories(ThirdParty::${name} SYSTEM INTERFACE "${IMPORTDAME_${name}_INCLUDE_DIR}")
    if(ARGC GREATER 2)
        find_library(IMPORTDAME_${name}_LIBRARY ${ARGV2} REQUIRED)
        mark_as_advanced(IMPORTDAME_${name}_LIBRARY)
        target_link_libraries(ThirdParty::${name} INTERFACE "${IMPORTDAME_${name}_LIBRARY}")
    endif()
endfunction()

# importdame_fetch_source(<package> <variable>): the folder with the sources of a Debian package.
function(importdame_fetch_source package variable)
    set(folder "${IMPORTDAME_SOURCE_CACHE}/${package}")
    if(NOT IS_DIRECTORY "${folder}")
        message(STATUS "Fetching the sources of ${package}")
        execute_process(COMMAND "${PROJECT_SOURCE_DIR}/cmake/fetch-debian-source" "${IMPORTDAME_SOURCE_CACHE}" ${package}
            OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
        if(NOT result EQUAL 0)
            message(FATAL_ERROR "The sources of ${package} could not be fetched:\n${output}")
        endif()
    endif()
    set(${variable} "${folder}" PARENT_SCOPE)
endfunction()
