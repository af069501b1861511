# The distribution brings the sources along; they are built for the target here.
if(NOT TARGET GTest::gtest)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
endif()
set(GTest_FOUND TRUE)
