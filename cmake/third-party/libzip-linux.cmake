importdame_use_installed_library(libzip zip.h zip)
