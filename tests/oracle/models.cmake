# Millions of comparisons, and templates that are to be compiled as the plug-in's own.
set(oracle_optimisation $<IF:$<CONFIG:Release>,-O2,-O1>)

# The independent models of texts and statistics, for the oracles here and for the validator.
set(oracle_sources
  big_integer.cpp
  element_generator.cpp
  exact_decimal.cpp
  number_grammar.cpp
  number_texts.cpp
  parse_model.cpp
  soft_float.cpp
  statistics_model.cpp
  text_generator.cpp
  text_model.cpp)
list(TRANSFORM oracle_sources PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
add_library(oracle_models STATIC ${oracle_sources})
target_compile_options(oracle_models PRIVATE ${oracle_optimisation})
target_include_directories(oracle_models PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(oracle_models PRIVATE vtlcmd_options)

# The plug-in's parsers beside their model, for oracles and fuzz targets.
add_library(input_comparison STATIC EXCLUDE_FROM_ALL
  ${CMAKE_CURRENT_LIST_DIR}/input_comparison.cpp)
target_compile_options(input_comparison PRIVATE ${oracle_optimisation})
target_link_libraries(input_comparison
  PRIVATE vtlcmd_options
  PUBLIC oracle_models vtlcmd_translation)
