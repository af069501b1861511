#include "vtlcmd/build_identity/build_identity.h"

// In the library's own sources, so that it runs while the library is loaded and in no program that
// links the code otherwise.
bool vtlcmd::build_identity::versionInfoDumped = vtlcmd::build_identity::dumpVersionInfo();
