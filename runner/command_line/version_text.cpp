#include "command_line/version_text.h"

#include "build_facts.h"
#include "readers/archive.h"
#include "readers/mesh_import.h"

namespace vtlcmd::runner {

std::string versionText() {
  using namespace build_facts;
  const std::string dot = ".";
  return "vtlcmd " + std::string(majorVersion) + dot + minorVersion + dot + patchVersion + dot +
         fourthVersion + "\ndate         " + buildDate + "\nbuild        " + buildNumber +
         "\ncommit       " + commit + "\nbranch       " + branch + "\nmesh reader  " +
         meshReaderName() + "\narchives     " + archiveReaderName();
}

}  // namespace vtlcmd::runner
