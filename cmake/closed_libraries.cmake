# The closed libraries from elsewhere, under the names of the stand-ins' targets.
foreach(library OrvelCore OrvelSDK VantrelBoardExecutor VantrelObject VantrelGeometry)
  find_library(${library}_FILE ${library} PATHS ${VTLCMD_CLOSED_LIBRARIES} NO_DEFAULT_PATH REQUIRED)
  add_library(${library} UNKNOWN IMPORTED)
  set_target_properties(${library} PROPERTIES IMPORTED_LOCATION ${${library}_FILE})
endforeach()
