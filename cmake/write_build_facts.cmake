# Run by the build: -DSOURCE_DIR -DHEADER -DVERSION. Without a git checkout of its own, as in an
# unpacked source archive, the commit is forty zeros, the build number 0 and the branch says so.

function(git result)
  execute_process(COMMAND git ${ARGN} WORKING_DIRECTORY ${SOURCE_DIR} RESULT_VARIABLE status
                  OUTPUT_VARIABLE output OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(NOT status EQUAL 0)
    set(output "")
  endif()
  set(${result} "${output}" PARENT_SCOPE)
endfunction()

git(top rev-parse --show-toplevel)
git(commit rev-parse HEAD)
file(REAL_PATH ${SOURCE_DIR} source_dir)
if(commit AND top STREQUAL source_dir)
  git(build_number rev-list --count HEAD)
  git(branch rev-parse --abbrev-ref HEAD)
  if(branch STREQUAL "HEAD")
    set(branch "detached")
  endif()
  git(changes status --porcelain --untracked-files=no -- src cmake CMakeLists.txt)
  if(changes)
    string(APPEND branch "-modified")
  endif()
else()
  string(REPEAT "0" 40 commit)
  set(build_number 0)
  set(branch "source-archive")
endif()

string(REPLACE "." ";" version ${VERSION})
list(GET version 0 major)
list(GET version 1 minor)
list(GET version 2 patch)
list(GET version 3 fourth)
# SOURCE_DATE_EPOCH is honoured, for builds that must be reproduced: in UTC, wherever they are made.
set(zone "")
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  set(zone UTC)
endif()
string(TIMESTAMP date "%a %m/%d/%Y, %Y%m%d%H%M" ${zone})

file(WRITE ${HEADER} "#pragma once

// Written by the build.
namespace vtlcmd::build_facts {

inline constexpr const char* productName = \"Vantrel\";
inline constexpr const char* majorVersion = \"${major}\";
inline constexpr const char* minorVersion = \"${minor}\";
inline constexpr const char* patchVersion = \"${patch}\";
inline constexpr const char* fourthVersion = \"${fourth}\";
inline constexpr const char* buildNumber = \"${build_number}\";
inline constexpr const char* buildDate = \"${date}\";
inline constexpr const char* commit = \"${commit}\";
inline constexpr const char* branch = \"${branch}\";

}  // namespace vtlcmd::build_facts
")
