# Compiler settings that every target of the project shares, carried by the
# interface target hoopline_options.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

add_library(hoopline_options INTERFACE)
target_compile_definitions(hoopline_options INTERFACE
    QT_NO_FOREACH
    QT_NO_JAVA_STYLE_ITERATORS)
if(HOOPLINE_QT EQUAL 6)
    # Of what came after 5.15 nobody is warned: there is no other name in both.
    target_compile_definitions(hoopline_options INTERFACE QT_DEPRECATED_WARNINGS_SINCE=0x050F00)
endif()
target_compile_options(hoopline_options INTERFACE
    -Wall -Wextra -Wpedantic
    -Wextra-semi -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<CXX_COMPILER_ID:GNU>:-Wsuggest-override -Wduplicated-cond -Wlogical-op -Wshadow=local>)
if(HOOPLINE_WERROR)
    target_compile_options(hoopline_options INTERFACE -Werror)
endif()
# Design files and feeds are hostile until checked; where a check of ours should fail, the
# program ends rather than obeys. A sanitizer brings checks of its own.
if(NOT HOOPLINE_SANITIZE)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    set(shipped $<NOT:$<CONFIG:Debug>>)
    target_compile_options(hoopline_options INTERFACE
        $<${shipped}:-fstack-protector-strong>
        $<${shipped}:-U_FORTIFY_SOURCE>
        $<${shipped}:-D_FORTIFY_SOURCE=2>)
    target_link_options(hoopline_options INTERFACE $<${shipped}:LINKER:-z,relro,-z,now>)
endif()
if(HOOPLINE_DEBUG_SYMBOLS)
    # They name the sources by their place in the project, wherever that was built.
    target_compile_options(hoopline_options INTERFACE
        -g -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
endif()
if(HOOPLINE_SANITIZE)
    target_compile_options(hoopline_options INTERFACE
        -fsanitize=${HOOPLINE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(hoopline_options INTERFACE -fsanitize=${HOOPLINE_SANITIZE})
endif()
