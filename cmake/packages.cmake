# The packages of the installed tree, made by `./dev package`: of the same sources and with the same
# SOURCE_DATE_EPOCH the same bytes, wherever and whenever.
set(CPACK_GENERATOR DEB TGZ)
if(WIN32)
  set(CPACK_GENERATOR ZIP)
endif()
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_FILE_NAME
  ${PROJECT_NAME}-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_VENDOR "the vtlcmd authors")
set(CPACK_PACKAGE_CONTACT "the vtlcmd authors <vtlcmd@vtlcmd.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "runner of compute graphs with its type translation plug-in")
set(CPACK_PACKAGE_DESCRIPTION
"Runs compute graphs from the command line: text becomes typed values for the
input ports, and each output's value becomes report text. With the plug-in that
does both, and all that is needed to write another host for it.")
set(CPACK_STRIP_FILES ON)
set(CPACK_LINTIAN_OVERRIDES ${PROJECT_SOURCE_DIR}/cmake/lintian-overrides)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/finish_package_tree.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

include(CPack)
