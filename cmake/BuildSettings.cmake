# Settings that hold for every target of the project. Its own code links ImportDataModelSettings; what is built from the
# sources of others (GoogleTest, third-party libraries) does not.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(WIN32)
    set(CMAKE_SHARED_LIBRARY_PREFIX "") # ImportDataModel.dll
endif()

# On Windows a program finds its DLLs beside itself, so everything that runs lies in one folder: that of the project that takes
# this one into its build, if it has one.
foreach(kindAndFolder RUNTIME:bin LIBRARY:lib ARCHIVE:lib)
    string(REPLACE ":" ";" kindAndFolder ${kindAndFolder})
    list(POP_FRONT kindAndFolder kind folder)
    if(NOT CMAKE_${kind}_OUTPUT_DIRECTORY)
        set(CMAKE_${kind}_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/${folder}")
    endif()
endforeach()
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug or Release" FORCE)
endif()

# ccache keeps the results of files with a precompiled header only when told that it may.
find_program(IMPORTDAME_CCACHE ccache)
mark_as_advanced(IMPORTDAME_CCACHE)
if(IMPORTDAME_USE_CCACHE AND IMPORTDAME_CCACHE)
    foreach(language C CXX)
        set(CMAKE_${language}_COMPILER_LAUNCHER
            "${CMAKE_COMMAND};-E;env;CCACHE_SLOPPINESS=pch_defines,time_macros;${IMPORTDAME_CCACHE}")
    endforeach()
endif()

add_library(ImportDataModelSettings INTERFACE)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(ImportDataModelSettings INTERFACE
        -ffp-contract=off # the same digits on every machine
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
        # clang holds the C++ library of g++ 12 to account for a deprecated function that std::stable_sort calls there.
        $<$<CXX_COMPILER_ID:Clang>:-Wno-deprecated-declarations>
        $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess> # lets ccache see through a precompiled header
        $<$<BOOL:${IMPORTDAME_WARNINGS_AS_ERRORS}>:-Werror>
    )
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # When it optimizes, g++ 12 takes a string put in front of another for an overlapping or endless copy, and offsets into the
    # block of a thread of Windows for addresses.
    target_compile_options(ImportDataModelSettings INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds)
endif()

if(IMPORTDAME_MEASURE_COVERAGE)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "Coverage is measured with clang: use the preset linux-coverage.")
    endif()
    target_compile_options(ImportDataModelSettings INTERFACE
        -fprofile-instr-generate -fcoverage-mapping -fcoverage-mcdc)
    target_link_options(ImportDataModelSettings INTERFACE -fprofile-instr-generate)
endif()
