#include "text/program_version.h"

#include "build_facts.h"

namespace vtlcmd::runner {

std::string programVersion() {
  using namespace build_facts;
  const std::string dot = ".";
  return std::string(majorVersion) + dot + minorVersion + dot + patchVersion + dot + fourthVersion;
}

}  // namespace vtlcmd::runner
