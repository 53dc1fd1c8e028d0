importdame_use_installed_library(cli11 CLI/CLI.hpp)
