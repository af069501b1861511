# The plug-in; a host loads it and never links it. On Windows it stands beside the stand-ins and the
# programs, since what a library needs is looked for beside it.
install(TARGETS VtlCmdTranslation EXPORT vtlcmd_targets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT plug-in
  LIBRARY DESTINATION ${VTLCMD_LIBRARY_FOLDER} COMPONENT plug-in
  ARCHIVE DESTINATION ${VTLCMD_LIBRARY_FOLDER} COMPONENT development)
