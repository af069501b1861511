# Run by CPack on the tree that becomes a package.
set(tree ${CPACK_TEMPORARY_DIRECTORY})

if(CPACK_GENERATOR STREQUAL DEB)
  # As Debian has it: a change log in its own form, texts to read compressed, and of the licence the
  # copy that every machine has.
  set(documents ${tree}/usr/share/doc/vtlcmd)
  file(REMOVE ${documents}/LICENSE)
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  file(WRITE ${documents}/changelog "vtlcmd (${CPACK_PACKAGE_VERSION}) stable; urgency=medium

  * As CHANGELOG.md tells.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
  file(MAKE_DIRECTORY ${tree}/usr/share/lintian/overrides)
  file(COPY_FILE ${CPACK_LINTIAN_OVERRIDES} ${tree}/usr/share/lintian/overrides/vtlcmd)
  file(GLOB pages ${tree}/usr/share/man/man?/*)
  execute_process(COMMAND gzip -9n ${documents}/changelog ${pages} COMMAND_ERROR_IS_FATAL ANY)
endif()

if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND find ${tree} -exec touch -h -d @$ENV{SOURCE_DATE_EPOCH} {} +
                  COMMAND_ERROR_IS_FATAL ANY)
endif()
