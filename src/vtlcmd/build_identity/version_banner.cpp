#include <iomanip>
#include <iostream>

#include "vtlcmd/build_identity/build_identity.h"

namespace vtlcmd::build_identity {

bool dumpVersionInfo() {
  const bool dump = envFlag("QUILLON_DUMP_VERSION_INFO") && hasErrorStream();
  if (dump) {
    // While the library is loaded, nobody else may have set the standard streams up yet.
    const std::ios_base::Init streams;
    // The name is longer than the width, which puts it at the left edge whatever width was set.
    constexpr int nameWidth = 16;
    std::cerr << std::setw(nameWidth) << "VtlCmdTranslation"
              << ": " << buildBanner() << std::endl;
  }
  return dump;
}

}  // namespace vtlcmd::build_identity
