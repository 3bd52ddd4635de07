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

# hoopline_test(tst_name DEPENDS ... [SOURCES ...] [TIMEOUT seconds])
# One QtTest executable made of tst_name.cpp. It runs without a display and in
# a home folder of its own inside the build folder, so that it neither sees nor
# leaves anything in the home of whoever runs it.
function(hoopline_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;DEPENDS" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_compile_definitions(${name} PRIVATE
        TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data"
        SAMPLES_DIR="${PROJECT_SOURCE_DIR}/samples")
    target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} Qt5::Test hoopline_options)
    set(home "${PROJECT_BINARY_DIR}/test-home/${name}")
    file(MAKE_DIRECTORY "${home}/runtime")
    file(CHMOD "${home}/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    add_test(NAME ${name} COMMAND ${name})
    set(environment
        QT_QPA_PLATFORM=offscreen
        LC_ALL=C.UTF-8
        HOME=${home}
        XDG_CONFIG_HOME=${home}/config
        XDG_DATA_HOME=${home}/data
        XDG_CACHE_HOME=${home}/cache
        XDG_RUNTIME_DIR=${home}/runtime
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT "${environment}")
endfunction()

# hoopline_benchmark(bench_name DEPENDS ... [SOURCES ...])
# A QtTest benchmark; built on demand and never part of the test run.
function(hoopline_benchmark name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} Qt5::Test hoopline_options)
endfunction()
