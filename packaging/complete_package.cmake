# What the Debian package has beside what is installed everywhere, and what it does without. CPack
# runs this with DESTDIR as the package's root, which file(INSTALL) puts before its destination.

file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/lintian-overrides" RENAME quazo
  DESTINATION "${CPACK_PACKAGING_INSTALL_PREFIX}/share/lintian/overrides")
execute_process(COMMAND "${CPACK_QUAZO_STRIP}" --remove-section=.comment
  "$ENV{DESTDIR}${CPACK_PACKAGING_INSTALL_PREFIX}/libexec/xscreensaver/quazo"
  COMMAND_ERROR_IS_FATAL ANY)
