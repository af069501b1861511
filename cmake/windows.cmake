# A library is called what its import lists and its users call it, without a prefix.
set(CMAKE_SHARED_LIBRARY_PREFIX "")

# The language's run time is shared by all modules of a process, as on other platforms: memory,
# standard strings, exceptions and their types, error categories and the global locale cross the
# border between host, plug-in and closed libraries. So its DLLs stand beside the programs.
foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
                  OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  file(REAL_PATH ${file} file)
  file(COPY ${file} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  install(FILES ${file} DESTINATION bin COMPONENT programs)
endforeach()
