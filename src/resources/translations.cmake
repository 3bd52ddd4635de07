# Translations in the program: every language is compiled from its source and
# put into a resource collection.

get_target_property(qmake Qt${HOOPLINE_QT}::qmake IMPORTED_LOCATION)
execute_process(COMMAND "${qmake}" -query QT_INSTALL_TRANSLATIONS
    OUTPUT_VARIABLE qt_translations OUTPUT_STRIP_TRAILING_WHITESPACE)

# hoopline_translations(collection source_prefix with_qt)
# Makes the collection, whose resources lie below ":/collection" and are named
# after the language, of translations/<source_prefix>_<language>.ts. With
# with_qt set, the translations of Qt's own dialogs join them as qt_<language>.
# Sets <collection>_sources in the caller's scope.
function(hoopline_translations collection source_prefix with_qt)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${collection}")
    file(MAKE_DIRECTORY "${folder}")
    set(entries "")
    foreach(language IN ITEMS de en zh_CN)
        set(source "${CMAKE_CURRENT_SOURCE_DIR}/translations/${source_prefix}_${language}.ts")
        set(output "${folder}/${language}.qm")
        add_custom_command(OUTPUT "${output}"
            COMMAND Qt${HOOPLINE_QT}::lrelease -silent "${source}" -qm "${output}"
            DEPENDS "${source}" VERBATIM)
        string(APPEND entries "    <file>${language}.qm</file>\n")
        # qt_<language>.qm itself only names the files of Qt's modules.
        set(qt_source "${qt_translations}/qtbase_${language}.qm")
        if(with_qt AND EXISTS "${qt_source}")
            set(output "${folder}/qt_${language}.qm")
            configure_file("${qt_source}" "${output}" COPYONLY)
            string(APPEND entries "    <file>qt_${language}.qm</file>\n")
        elseif(with_qt AND NOT language STREQUAL "en")
            message(WARNING "No Qt translation ${qt_source}: Qt's own texts stay English")
        endif()
    endforeach()
    file(CONFIGURE OUTPUT "${folder}/${collection}.qrc" CONTENT
"<!DOCTYPE RCC>
<RCC version=\"1.0\">
<qresource prefix=\"/${collection}\">
${entries}</qresource>
</RCC>
" @ONLY)
    hoopline_resource_collection(${collection}_sources ${collection}
        "${folder}/${collection}.qrc")
    set(${collection}_sources ${${collection}_sources} PARENT_SCOPE)
endfunction()
