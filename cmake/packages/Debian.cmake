# libimportdatamodel1, libimportdatamodel-dev and importdatamodel-console-importer.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/SetTimes.cmake")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(runtimePackage "libimportdatamodel${PROJECT_VERSION_MAJOR}")

# importdame_describe_package(<component> <package> <section> <summary> <text>)
function(importdame_describe_package component package section summary text)
    string(TOUPPER ${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_COMPONENT_${upper}_DESCRIPTION "${summary}\n${text}" PARENT_SCOPE)
    install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}"
        RENAME copyright COMPONENT ${component})
endfunction()

importdame_describe_package(Runtime ${runtimePackage} libs "Diagnostic descriptions of control units in memory"
    "Trouble codes, data types, packets, variants and services, as importers fill them and back ends read them.")
importdame_describe_package(Development libimportdatamodel-dev libdevel "Headers and CMake files of ImportDataModel"
    "What writing an importer or a back end needs.")
importdame_describe_package(ConsoleImporter importdatamodel-console-importer utils "ODX into SQLite"
    "ConsoleImport reads ISO 22901-1 (ODX) data of a control unit and writes an SQLite database.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_CONSOLEIMPORTER_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/lib")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtimePackage} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_CONSOLEIMPORTER_PACKAGE_DEPENDS "${runtimePackage} (= ${PROJECT_VERSION})")

# What is compiled into ConsoleImport has its licence beside it.
install(FILES /usr/share/doc/libcli11-dev/copyright COMPONENT ConsoleImporter
    DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/importdatamodel-console-importer" RENAME copyright.CLI11)
