# Renders the manual, in each language that it is written in, as a page beside its
# pictures, for the browser that the Help menu opens. Without the renderer the program
# does without the pages.
find_program(HOOPLINE_LOWDOWN lowdown DOC "Renders the manual; of the Debian package lowdown")

function(hoopline_render_manual folder)
    if(NOT HOOPLINE_LOWDOWN)
        message(WARNING "lowdown is not installed: the Help menu will have no manual to open.")
        return()
    endif()
    set(docs "${PROJECT_SOURCE_DIR}/docs")
    set(renderer "${PROJECT_SOURCE_DIR}/cmake/RenderManual.cmake")
    set(frame "${PROJECT_SOURCE_DIR}/cmake/manual.html.in")
    file(GLOB sources CONFIGURE_DEPENDS "${docs}/manual*.md")
    file(GLOB pictures CONFIGURE_DEPENDS "${docs}/images/*.png")
    set(pages "")
    foreach(source IN LISTS sources)
        get_filename_component(name "${source}" NAME)
        string(REGEX REPLACE "md$" "html" name "${name}")
        add_custom_command(OUTPUT "${folder}/${name}"
            COMMAND ${CMAKE_COMMAND} -D "LOWDOWN=${HOOPLINE_LOWDOWN}" -D "SOURCE=${source}"
                -D "FRAME=${frame}" -D "PAGE=${folder}/${name}" -P "${renderer}"
            DEPENDS "${source}" "${frame}" "${renderer}"
            VERBATIM)
        list(APPEND pages "${folder}/${name}")
    endforeach()
    # A file of the build's own: that of a folder tells nothing about what is in it.
    set(copied "${PROJECT_BINARY_DIR}/manual-pictures.stamp")
    add_custom_command(OUTPUT "${copied}"
        COMMAND ${CMAKE_COMMAND} -E copy_directory "${docs}/images" "${folder}/images"
        COMMAND ${CMAKE_COMMAND} -E touch "${copied}"
        DEPENDS ${pictures}
        VERBATIM)
    add_custom_target(manual ALL DEPENDS ${pages} "${copied}")
    add_dependencies(hoopline-organizer manual)
endfunction()
