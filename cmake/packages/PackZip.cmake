# Run by cpack: packs the staged tree.
find_program(python python3 REQUIRED)
set(archive "${CPACK_TOPLEVEL_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.zip")
execute_process(COMMAND "${python}" "${CMAKE_CURRENT_LIST_DIR}/pack_zip.py" "${CPACK_TEMPORARY_DIRECTORY}" "${archive}"
    COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES "${archive}")
