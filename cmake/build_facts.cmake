# Writes generated/build_facts.h, the identity of a build, anew whenever anything that the plug-in is
# made of or the checked-out commit changes. Call it with the folder of the plug-in's sources.
function(add_build_facts folder)
  set(header ${PROJECT_BINARY_DIR}/generated/build_facts.h)
  # Headers and sources alike: each of them is in the plug-in, or in its copy for another platform.
  file(GLOB_RECURSE triggers CONFIGURE_DEPENDS ${folder}/* ${PROJECT_SOURCE_DIR}/cmake/*)
  list(APPEND triggers ${PROJECT_SOURCE_DIR}/CMakeLists.txt)
  execute_process(COMMAND git rev-parse --path-format=absolute --git-path logs/HEAD
                  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                  OUTPUT_VARIABLE head_log OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(head_log AND EXISTS ${head_log})
    list(APPEND triggers ${head_log})
  endif()
  add_custom_command(
    OUTPUT ${header}
    COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${PROJECT_SOURCE_DIR} -DHEADER=${header}
            -DVERSION=${PROJECT_VERSION} -P ${PROJECT_SOURCE_DIR}/cmake/write_build_facts.cmake
    DEPENDS ${triggers}
    VERBATIM)
  add_custom_target(build_facts_header DEPENDS ${header})
  add_library(build_facts INTERFACE)
  target_include_directories(build_facts INTERFACE ${PROJECT_BINARY_DIR}/generated)
  add_dependencies(build_facts build_facts_header)
endfunction()
