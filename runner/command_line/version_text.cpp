#include "command_line/version_text.h"

#include "build_facts.h"
#include "readers/archive.h"
#include "readers/mesh_import.h"
#include "text/program_version.h"

namespace vtlcmd::runner {

std::string versionText() {
  using namespace build_facts;
  return "vtlcmd " + programVersion() + "\ndate         " + buildDate + "\nbuild        " +
         buildNumber + "\ncommit       " + commit + "\nbranch       " + branch + "\nmesh reader  " +
         meshReaderName() + "\narchives     " + archiveReaderName();
}

}  // namespace vtlcmd::runner
