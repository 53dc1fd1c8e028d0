# Leaves folder names and times out of what is built, so that the same sources give the same bytes in any folder.
if(IMPORTDAME_REPRODUCIBLE)
    add_compile_options("-ffile-prefix-map=${PROJECT_BINARY_DIR}=build" "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=."
        "-ffile-prefix-map=${IMPORTDAME_SOURCE_CACHE}=third-party")
    if(MINGW)
        add_link_options(-Wl,--no-insert-timestamp)
    endif()
endif()
