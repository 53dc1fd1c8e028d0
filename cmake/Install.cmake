# What is installed, in three components:
#
#   Runtime           the three shared libraries; on Windows also the C++ runtime that they share with their hosts
#   Development       headers, import libraries, the CMake package and the files of pkg-config
#   ConsoleImporter   ConsoleImport
#
# The installed tree may be moved as a whole.

include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(libraries ImportDataModel)
if(IMPORTDAME_USE_EMBEDDED_PLATFORM_LIBRARIES)
    list(APPEND libraries KoLogging KoCustomCrashHandling)
endif()

install(TARGETS ${libraries} EXPORT ImportDataModelTargets
    RUNTIME COMPONENT Runtime
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE COMPONENT Development
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
if(MINGW)
    install(FILES ${IMPORTDAME_WINDOWS_RUNTIME_FILES} DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Runtime)
endif()

set(headerFolders include)
if(IMPORTDAME_USE_EMBEDDED_PLATFORM_LIBRARIES)
    list(APPEND headerFolders platform/logging/include platform/crashhandling/include)
endif()
foreach(folder ${headerFolders})
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/${folder}/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
        COMPONENT Development FILES_MATCHING PATTERN "*.h")
endforeach()

set(packageFolder "${CMAKE_INSTALL_LIBDIR}/cmake/ImportDataModel")
set(workFolder "${PROJECT_BINARY_DIR}/install")
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/install/ImportDataModelConfig.cmake.in"
    "${workFolder}/ImportDataModelConfig.cmake" INSTALL_DESTINATION "${packageFolder}")
write_basic_package_version_file("${workFolder}/ImportDataModelConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${workFolder}/ImportDataModelConfig.cmake" "${workFolder}/ImportDataModelConfigVersion.cmake"
    DESTINATION "${packageFolder}" COMPONENT Development)
install(EXPORT ImportDataModelTargets NAMESPACE ImportDataModel:: DESTINATION "${packageFolder}" COMPONENT Development)

file(RELATIVE_PATH rootFromPkgConfig "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" rootFromPkgConfig "${rootFromPkgConfig}")
foreach(library ${libraries})
    configure_file("${CMAKE_CURRENT_LIST_DIR}/install/${library}.pc.in" "${workFolder}/${library}.pc" @ONLY)
    install(FILES "${workFolder}/${library}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT Development)
endforeach()

if(TARGET ConsoleImport)
    install(TARGETS ConsoleImport RUNTIME COMPONENT ConsoleImporter)
endif()

if(NOT WIN32)
    file(RELATIVE_PATH librariesFromPrograms "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
    set_target_properties(${libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")
    if(TARGET ConsoleImport)
        set_target_properties(ConsoleImport PROPERTIES INSTALL_RPATH "$ORIGIN/${librariesFromPrograms}")
    endif()
endif()
