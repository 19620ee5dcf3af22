# What the Debian package has beside what is installed everywhere, and what it does without. CPack
# runs this with DESTDIR as the package's root, which file(INSTALL) puts before its destination.

file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/lintian-overrides" RENAME quazo
  DESTINATION "${CPACK_PACKAGING_INSTALL_PREFIX}/share/lintian/overrides")
execute_process(COMMAND "${CPACK_QUAZO_STRIP}" --remove-section=.comment
  "$ENV{DESTDIR}${CPACK_PACKAGING_INSTALL_PREFIX}/${CPACK_QUAZO_HOSTS}/quazo"
  COMMAND_ERROR_IS_FATAL ANY)
# Whatever umask the package is made with, its users may enter its directories.
file(CHMOD_RECURSE "$ENV{DESTDIR}" DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
