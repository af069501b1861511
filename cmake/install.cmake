# The installed tree. Its folders are fixed, whatever the machine's habit: the program looks for the
# plug-in at ../lib/vtlcmd, and every library for the others relative to itself.
include(CMakePackageConfigHelpers)

set(closed_libraries OrvelCore OrvelSDK VantrelBoardExecutor VantrelObject VantrelGeometry)

install(TARGETS vtlcmd RUNTIME DESTINATION bin)
install(TARGETS ${closed_libraries} vtlcmd_shared EXPORT vtlcmd_targets
  RUNTIME DESTINATION bin
  LIBRARY DESTINATION lib
  ARCHIVE DESTINATION lib
  INCLUDES DESTINATION include/vtlcmd)
install(TARGETS VtlCmdTranslation EXPORT vtlcmd_targets
  RUNTIME DESTINATION lib/vtlcmd
  LIBRARY DESTINATION lib/vtlcmd
  ARCHIVE DESTINATION lib/vtlcmd)
set_target_properties(vtlcmd PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
set_target_properties(OrvelSDK VantrelBoardExecutor VantrelObject VantrelGeometry
  PROPERTIES INSTALL_RPATH "$ORIGIN")
set_target_properties(VtlCmdTranslation PROPERTIES INSTALL_RPATH "$ORIGIN/..")

# What a host compiles and links: the records and the logger, and how the stand-ins make values.
set_target_properties(vtlcmd_shared PROPERTIES OUTPUT_NAME vtlcmd_host EXPORT_NAME host)
install(DIRECTORY src/host src/logging DESTINATION include/vtlcmd FILES_MATCHING PATTERN *.h)
install(FILES closed/orvel_core/make_ptr.h DESTINATION include/vtlcmd/orvel_core)
install(FILES closed/orvel_sdk/any_bridge.h closed/orvel_sdk/stored_types.h
              closed/orvel_sdk/type_factory.h closed/orvel_sdk/value_factory.h
  DESTINATION include/vtlcmd/orvel_sdk)
install(FILES closed/vantrel_object/object_builder.h DESTINATION include/vtlcmd/vantrel_object)
install(FILES closed/vantrel_geometry/geometry_builder.h
  DESTINATION include/vtlcmd/vantrel_geometry)

# find_package(vtlcmd CONFIG)
install(EXPORT vtlcmd_targets NAMESPACE vtlcmd:: DESTINATION lib/cmake/vtlcmd
  FILE vtlcmd-targets.cmake)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/vtlcmd-config-version.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES cmake/vtlcmd-config.cmake ${CMAKE_BINARY_DIR}/vtlcmd-config-version.cmake
  DESTINATION lib/cmake/vtlcmd)

# pkg-config vtlcmd
configure_file(cmake/vtlcmd.pc.in vtlcmd.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/vtlcmd.pc DESTINATION lib/pkgconfig)

install(FILES README.md CHANGELOG.md LICENSE cmake/copyright DESTINATION share/doc/vtlcmd)
install(DIRECTORY docs DESTINATION share/doc/vtlcmd FILES_MATCHING PATTERN *.md PATTERN *.png)
# The examples name their schema by its relative path.
install(DIRECTORY docs DESTINATION share/vtlcmd FILES_MATCHING PATTERN *.schema.json)
install(DIRECTORY examples DESTINATION share/vtlcmd)

install(DIRECTORY ${VTLCMD_MANUAL_FOLDER}/ DESTINATION share/man)
install(FILES runner/shells/vtlcmd.bash DESTINATION share/bash-completion/completions RENAME vtlcmd)
install(FILES runner/shells/vtlcmd.fish DESTINATION share/fish/vendor_completions.d)
install(FILES runner/shells/_vtlcmd DESTINATION share/zsh/vendor-completions)
