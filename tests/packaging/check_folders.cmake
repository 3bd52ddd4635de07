# Compiles resources in a folder whose name a shell takes for its own.
set(build "$ENV{TMPDIR}/Muster für alle (1)")
foreach(step IN ITEMS "-S;${SOURCE};-B;${build};-G;Ninja;-DTARGETS=${TARGETS};-DHOOPLINE_QT=${HOOPLINE_QT}" "--build;${build}")
    execute_process(COMMAND ${CMAKE_COMMAND} ${step}
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${output}")
    endif()
endforeach()
file(GLOB compiled "${build}/qrc_texts.cpp")
if(NOT compiled)
    message(FATAL_ERROR "the resources were not compiled: ${output}")
endif()
