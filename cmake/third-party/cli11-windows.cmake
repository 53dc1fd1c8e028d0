# The headers are the ones of Linux, and only they: the folder that holds them has Linux's other headers as well.
find_path(IMPORTDAME_cli11_INCLUDE_DIR CLI/CLI.hpp REQUIRED NO_CMAKE_FIND_ROOT_PATH PATHS /usr/include)
mark_as_advanced(IMPORTDAME_cli11_INCLUDE_DIR)
set(folder "${PROJECT_BINARY_DIR}/third-party/cli11")
file(MAKE_DIRECTORY "${folder}")
file(CREATE_LINK "${IMPORTDAME_cli11_INCLUDE_DIR}/CLI" "${folder}/CLI" SYMBOLIC)
add_library(ThirdParty::cli11 INTERFACE IMPORTED GLOBAL)
target_include_directories(ThirdParty::cli11 SYSTEM INTERFACE "${folder}")
