# Renders the manual as a page beside its pictures, for the browser that the Help menu
# opens. Without the renderer the program does without the page.
find_program(HOOPLINE_LOWDOWN lowdown DOC "Renders the manual; of the Debian package lowdown")

function(hoopline_render_manual folder)
    if(NOT HOOPLINE_LOWDOWN)
        message(WARNING "lowdown is not installed: the Help menu will have no manual to open.")
        return()
    endif()
    set(docs "${PROJECT_SOURCE_DIR}/docs")
    file(GLOB pictures CONFIGURE_DEPENDS "${docs}/images/*.png")
    add_custom_command(OUTPUT "${folder}/manual.html"
        COMMAND ${HOOPLINE_LOWDOWN} -s -t html -m "title=Hoopline Organizer: the manual"
            -m css=style.css -o "${folder}/manual.html" "${docs}/manual.md"
        COMMAND ${CMAKE_COMMAND} -E copy_directory "${docs}/images" "${folder}/images"
        DEPENDS "${docs}/manual.md" ${pictures}
        VERBATIM)
    add_custom_target(manual ALL DEPENDS "${folder}/manual.html")
    add_dependencies(hoopline-organizer manual)
endfunction()
