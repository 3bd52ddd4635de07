# Run by cpack before it packs: brings the documents into the form that Debian asks for.
file(GLOB root "${CPACK_TEMPORARY_DIRECTORY}/usr" "${CPACK_TEMPORARY_DIRECTORY}/*/usr")
set(documents "${root}/share/doc/${CPACK_PACKAGE_NAME}")
file(RENAME "${documents}/CHANGELOG.md" "${documents}/changelog")
configure_file("${CMAKE_CURRENT_LIST_DIR}/debian/changelog" "${documents}/changelog.Debian" COPYONLY)
configure_file("${CMAKE_CURRENT_LIST_DIR}/debian/copyright" "${documents}/copyright" COPYONLY)
file(GLOB texts "${documents}/changelog*" "${root}/share/man/man1/*.1")
# Without name and time, so that the same build makes the same package.
execute_process(COMMAND gzip --best --no-name ${texts} COMMAND_ERROR_IS_FATAL ANY)
set(overrides "${root}/share/lintian/overrides/hoopline-organizer")
configure_file("${CMAKE_CURRENT_LIST_DIR}/debian/hoopline-organizer.lintian-overrides"
    "${overrides}" COPYONLY)
# Copies have the rights that the checkout got from its owner's umask.
file(CHMOD "${documents}/changelog.Debian.gz" "${documents}/copyright" "${overrides}"
    PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
