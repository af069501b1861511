# Every target of the project links this.
add_library(vtlcmd_options INTERFACE)
target_compile_options(vtlcmd_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion
  # In a unity build a local name may be that of another source.
  $<$<NOT:$<BOOL:${CMAKE_UNITY_BUILD}>>:-Wshadow>
  # Sums and averages are rounded step by step; a fused multiply-add would round once.
  -ffp-contract=off
  # g++ 12 sees overlaps in the concatenation of standard strings that aren't there.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

set(VTLCMD_SANITIZE "" CACHE STRING "Sanitizers to compile with, separated by commas")
if(VTLCMD_SANITIZE)
  add_compile_options(-fsanitize=${VTLCMD_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${VTLCMD_SANITIZE})
endif()

if(MINGW)
  # g++ takes its own copy of an inline function for the one that is called, and goes by the registers
  # which that copy leaves alone; the linker may keep another file's copy, compiled otherwise.
  add_compile_options(-fno-ipa-ra)
  # An object file has fewer sections by default than several sources with their templates need.
  add_compile_options(-Wa,-mbig-obj)
endif()
