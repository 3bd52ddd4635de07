# Run after files came or went below CMAKE_INSTALL_PREFIX: the desktop finds programs,
# types of files and icons by way of databases that have to be made anew. Nothing is done
# where a package is being put together, whose installation does so by itself.
if("$ENV{DESTDIR}" STREQUAL "" AND NOT CMAKE_INSTALL_PREFIX MATCHES "/_CPack_Packages/")
    set(data "${CMAKE_INSTALL_PREFIX}/share")
    foreach(line IN ITEMS
            "shared-mime-info;update-mime-database;${data}/mime"
            "desktop-file-utils;update-desktop-database;${data}/applications")
        list(GET line 0 package)
        list(GET line 1 name)
        list(GET line 2 folder)
        find_program(program_${name} ${name})
        if(NOT EXISTS "${folder}")
            continue()
        elseif(program_${name})
            message(STATUS "Refreshing: ${folder}")
            # It warns of folders that the desktop does not look into, which is to be seen.
            execute_process(COMMAND "${program_${name}}" "${folder}")
        else()
            message(STATUS "For designs to open from the file manager, install ${package} and "
                "run: ${name} '${folder}'")
        endif()
    endforeach()
    # A cache of icons that is older than its folder is not used; the rest needs none.
    if(EXISTS "${data}/icons/hicolor")
        file(TOUCH "${data}/icons/hicolor")
    endif()
    find_program(program_icons gtk-update-icon-cache)
    if(program_icons AND EXISTS "${data}/icons/hicolor/icon-theme.cache")
        execute_process(COMMAND "${program_icons}" --quiet --force --ignore-theme-index
            "${data}/icons/hicolor")
    endif()
endif()
