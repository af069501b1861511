# add_header_only(target folder): the headers of /usr/include/<folder>, which any compiler can read,
# and nothing else of /usr/include, which a cross compiler must not see.
function(add_header_only target folder)
  if(TARGET ${target})
    return()
  endif()
  set(headers ${CMAKE_BINARY_DIR}/headers/${folder})
  file(MAKE_DIRECTORY ${headers})
  file(CREATE_LINK /usr/include/${folder} ${headers}/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} SYSTEM INTERFACE ${headers})
endfunction()
