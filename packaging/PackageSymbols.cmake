# Run by cpack after it packed: the sums of the package of symbols are told with the paths of
# this machine, which no dpkg --verify finds, and it has no documents. Both are put right.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    if(NOT package MATCHES "-dbgsym_[^/]*[.]ddeb$")
        continue()
    endif()
    set(tree "${CPACK_TEMPORARY_DIRECTORY}-symbols")
    file(REMOVE_RECURSE "${tree}")
    execute_process(COMMAND dpkg-deb --raw-extract "${package}" "${tree}"
        COMMAND_ERROR_IS_FATAL ANY)
    file(READ "${tree}/DEBIAN/md5sums" sums)
    string(REGEX REPLACE "  [^\n]*/(usr/lib/debug/)" "  \\1" sums "${sums}")
    file(WRITE "${tree}/DEBIAN/md5sums" "${sums}")
    file(MAKE_DIRECTORY "${tree}/usr/share/doc")
    file(CREATE_LINK ${CPACK_PACKAGE_NAME} "${tree}/usr/share/doc/${CPACK_PACKAGE_NAME}-dbgsym"
        SYMBOLIC)
    execute_process(COMMAND dpkg-deb --root-owner-group -Zxz -z1 --build "${tree}" "${package}"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE "${tree}")
endforeach()
