# One archive with all components and the licences of everything in it.

set(CPACK_GENERATOR External)
set(CPACK_MONOLITHIC_INSTALL ON)
set(CPACK_PACKAGE_FILE_NAME "ImportDataModel-${PROJECT_VERSION}-win64")
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT "${CMAKE_CURRENT_LIST_DIR}/PackZip.cmake")

# The texts come from the Debian packages whose sources or files are built in or shipped.
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION licenses RENAME ImportDataModel.txt)
install(FILES "${CMAKE_CURRENT_LIST_DIR}/licenses-windows.txt" DESTINATION licenses RENAME README.txt)
foreach(name pugixml libzip sqlite3)
    install(FILES "${IMPORTDAME_SOURCE_CACHE}/${name}/debian/copyright" DESTINATION licenses RENAME ${name}.txt)
endforeach()
install(FILES /usr/share/doc/libz-mingw-w64-dev/copyright DESTINATION licenses RENAME zlib.txt)
install(FILES /usr/share/doc/libcli11-dev/copyright DESTINATION licenses RENAME CLI11.txt)
install(FILES /usr/share/doc/gcc-mingw-w64-base/copyright DESTINATION licenses RENAME gcc.txt)
install(FILES /usr/share/doc/mingw-w64-common/copyright DESTINATION licenses RENAME mingw-w64.txt)
install(FILES /usr/share/common-licenses/GPL-3 DESTINATION licenses RENAME GPL-3.txt)
