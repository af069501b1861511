# Where things are installed, seen from the prefix. The plug-in and the stand-ins have a folder of
# their own, so that nobody comes upon a stand-in who looks for the library that it stands for.
if(CMAKE_LIBRARY_ARCHITECTURE AND NOT DEFINED CMAKE_INSTALL_LIBDIR)
  # Where a system has a folder of libraries for each kind of processor, every tree is like its own.
  set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE} CACHE PATH "Folder of libraries")
endif()
include(GNUInstallDirs)
set(VTLCMD_LIBRARY_FOLDER ${CMAKE_INSTALL_LIBDIR}/vtlcmd)

# Program, plug-in and stand-ins find one another by relative ways, so that the tree can be moved.
file(RELATIVE_PATH VTLCMD_PROGRAMS_TO_LIBRARIES
  ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/vtlcmd)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
