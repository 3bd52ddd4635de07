# Builds a small program with the options of a release and looks at how it came out.
set(build "$ENV{TMPDIR}/hardening")
foreach(step IN ITEMS "-S;${SOURCE};-B;${build};-G;Ninja;-DCMAKE_BUILD_TYPE=Release;-DOPTIONS=${OPTIONS}"
        "--build;${build}")
    execute_process(COMMAND ${CMAKE_COMMAND} ${step}
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${output}")
    endif()
endforeach()
execute_process(COMMAND "${READELF}" --wide --file-header --segments --dynamic --syms
    "${build}/bin/program" OUTPUT_VARIABLE program)
foreach(expected IN ITEMS
        "Type: +DYN" "FLAGS_1.* PIE" "GNU_RELRO" "FLAGS_1.* NOW" "__stack_chk_fail" "__strcpy_chk")
    if(NOT program MATCHES "${expected}")
        message(FATAL_ERROR "A release lacks what readelf would show as: ${expected}")
    endif()
endforeach()
