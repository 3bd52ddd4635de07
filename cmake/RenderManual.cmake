# Renders one manual: manual.md is the English one, manual.de.md is in German.
#   cmake -D LOWDOWN=... -D SOURCE=manual.de.md -D FRAME=manual.html.in -D PAGE=... -P ...
get_filename_component(name "${SOURCE}" NAME)
set(LANGUAGE en)
if(name MATCHES "^manual\\.(.+)\\.md$")
    set(LANGUAGE "${CMAKE_MATCH_1}")
endif()

file(STRINGS "${SOURCE}" TITLE REGEX "^# " LIMIT_COUNT 1 ENCODING UTF-8)
string(REGEX REPLACE "^# +" "" TITLE "${TITLE}")

# Anchors that are the same in all languages stand in the text as HTML.
execute_process(COMMAND "${LOWDOWN}" -t html --html-no-skiphtml --html-no-escapehtml "${SOURCE}"
    OUTPUT_VARIABLE BODY RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${SOURCE} could not be rendered.")
endif()
string(REGEX REPLACE "<p><a id=\"([^\"]+)\"></a></p>[ \n]*<h2 id=\"[^\"]*\">" "<h2 id=\"\\1\">"
    BODY "${BODY}")
# Chinese has no blanks between words, and browsers make one of the end of a line.
if(LANGUAGE MATCHES "^zh")
    string(REGEX REPLACE "([^ -~\n]|</strong>|</em>|</a>)\n([^ -~\n]|<strong>|<em>|<a )" "\\1\\2"
        BODY "${BODY}")
    string(REGEX REPLACE "(，|。|、|；|：)\n" "\\1" BODY "${BODY}")
endif()
# The manuals in other languages are pages here, too.
string(REGEX REPLACE "href=\"(manual[^\"]*)\\.md" "href=\"\\1.html" BODY "${BODY}")
# Wide tables scroll by themselves in a narrow window, not the page.
string(REPLACE "<table>" "<div class=\"table\"><table>" BODY "${BODY}")
string(REPLACE "</table>" "</table></div>" BODY "${BODY}")
configure_file("${FRAME}" "${PAGE}" @ONLY)
