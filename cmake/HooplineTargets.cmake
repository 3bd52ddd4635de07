# hoopline_library(name SOURCES ... DEPENDS ...)
# A static library of one floor of the program. Headers are included by their
# path below src/, so that an include line names the floor that it reaches for.
function(hoopline_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC
        "${PROJECT_SOURCE_DIR}/src" "${PROJECT_BINARY_DIR}/generated")
    target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} PRIVATE hoopline_options)
endfunction()

# hoopline_hot(target...)
# What goes over each byte, stitch or pixel is optimized in a debug build as well, or
# every test that meets it would wait for it.
function(hoopline_hot)
    foreach(target IN LISTS ARGN)
        target_compile_options(${target} PRIVATE $<$<CONFIG:Debug>:-O1>)
    endforeach()
endfunction()

# hoopline_resource_collection(sources collection qrc)
# Compiles a .qrc file and appends the outcome to the list of sources. rcc names the
# function that registers the collection after it, for Q_INIT_RESOURCE in main().
# Done here as CMake's own rule hands the path unquoted to a shell, which a checkout in
# "hoopline (1)" makes stumble.
function(hoopline_resource_collection sources collection qrc)
    get_filename_component(qrc "${qrc}" ABSOLUTE)
    get_filename_component(folder "${qrc}" DIRECTORY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${qrc}")
    file(STRINGS "${qrc}" entries REGEX "<file")
    list(TRANSFORM entries REPLACE ".*<file[^>]*>(.*)</file>.*" "${folder}/\\1")
    set(registered "${CMAKE_CURRENT_BINARY_DIR}/qrc_${collection}.cpp")
    add_custom_command(OUTPUT "${registered}"
        COMMAND Qt${HOOPLINE_QT}::rcc --name ${collection} "${qrc}" -o "${registered}"
        DEPENDS "${qrc}" ${entries} VERBATIM)
    set_source_files_properties("${registered}" PROPERTIES SKIP_AUTOMOC ON)
    set(${sources} ${${sources}} "${registered}" PARENT_SCOPE)
endfunction()

# hoopline_hermetic_test(name COMMAND ... [TIMEOUT seconds])
# A test that runs without a display in a folder of its own, which is its home and
# takes its temporary files: it neither sees nor leaves anything elsewhere. It ends
# with 77 where something lacks that it needs.
function(hoopline_hermetic_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "COMMAND" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    add_test(NAME ${name} COMMAND hermetic ${ARG_COMMAND})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} SKIP_RETURN_CODE 77 ENVIRONMENT
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")
endfunction()

# hoopline_test(tst_name DEPENDS ... [SOURCES ...] [TIMEOUT seconds] [LAUNCHER script])
# One QtTest executable made of tst_name.cpp. A launcher gets it as its argument.
function(hoopline_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT;LAUNCHER" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_compile_definitions(${name} PRIVATE
        TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data"
        SAMPLES_DIR="${PROJECT_SOURCE_DIR}/samples")
    target_link_libraries(${name} PRIVATE
        ${ARG_DEPENDS} Qt::Test hermetic_start hoopline_options)
    hoopline_hermetic_test(${name} TIMEOUT ${ARG_TIMEOUT}
        COMMAND ${ARG_LAUNCHER} $<TARGET_FILE:${name}>)
endfunction()

# hoopline_benchmark(bench_name DEPENDS ... [SOURCES ...])
# A QtTest benchmark; built on demand and never part of the test run.
function(hoopline_benchmark name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests"
        "${PROJECT_SOURCE_DIR}/bench")
    target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} Qt::Test hoopline_options)
endfunction()
