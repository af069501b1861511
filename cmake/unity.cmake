# A unity build compiles several sources as one. What includes a platform's own headers, with all
# their macros, stays by itself.
function(compile_platform_alone target)
  get_target_property(alone ${target} SOURCES)
  list(FILTER alone INCLUDE REGEX "_${VTLCMD_PLATFORM}(_test)?\\.cpp$")
  set_source_files_properties(${alone} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
