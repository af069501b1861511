# The installed tree, in four components: the plug-in, the stand-ins for the closed libraries, what
# the development of a host needs, and the programs with all that comes along.
include(CMakePackageConfigHelpers)
include(cmake/install_plug_in.cmake)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME programs)

set(closed_libraries OrvelCore OrvelSDK VantrelBoardExecutor VantrelObject VantrelGeometry)

install(TARGETS vtlcmd RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS ${closed_libraries} EXPORT vtlcmd_targets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT stand-ins
  LIBRARY DESTINATION ${VTLCMD_LIBRARY_FOLDER}
    COMPONENT stand-ins NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${VTLCMD_LIBRARY_FOLDER} COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
set_target_properties(vtlcmd PROPERTIES INSTALL_RPATH "$ORIGIN/${VTLCMD_PROGRAMS_TO_LIBRARIES}")
set_target_properties(OrvelSDK VantrelBoardExecutor VantrelObject VantrelGeometry VtlCmdTranslation
  PROPERTIES INSTALL_RPATH "$ORIGIN")

# What a host compiles and links: the records and the logger, and how the stand-ins make values.
install(TARGETS vtlcmd_shared EXPORT vtlcmd_targets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY src/vtlcmd/host src/vtlcmd/logging closed/vtlcmd/stand_in
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vtlcmd COMPONENT development FILES_MATCHING PATTERN *.h)

# find_package(vtlcmd CONFIG)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/vtlcmd)
install(EXPORT vtlcmd_targets NAMESPACE vtlcmd:: DESTINATION ${package_folder}
  FILE vtlcmd-targets.cmake COMPONENT development)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/vtlcmd-config-version.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES cmake/vtlcmd-config.cmake ${PROJECT_BINARY_DIR}/vtlcmd-config-version.cmake
  DESTINATION ${package_folder} COMPONENT development)

# pkg-config vtlcmd
file(RELATIVE_PATH VTLCMD_PREFIX_FROM_PKGCONFIG
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/vtlcmd.pc.in ${PROJECT_BINARY_DIR}/vtlcmd.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vtlcmd.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)

install(FILES README.md CHANGELOG.md LICENSE cmake/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR}
  FILES_MATCHING PATTERN *.md PATTERN *.png)
# The examples name their schema by its relative path.
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DATADIR}/vtlcmd
  FILES_MATCHING PATTERN *.schema.json)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DATADIR}/vtlcmd)

install(DIRECTORY ${VTLCMD_MANUAL_FOLDER}/ DESTINATION ${CMAKE_INSTALL_MANDIR})
install(FILES runner/shells/vtlcmd.bash
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME vtlcmd)
install(FILES runner/shells/vtlcmd.fish
  DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
install(FILES runner/shells/_vtlcmd DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
