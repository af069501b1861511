#include <cstdio>
#include <iomanip>
#include <iostream>
#include <sstream>

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

#include "build_identity/build_identity.h"

namespace vtlcmd::build_identity {
namespace {

// A stream keeps its number when what is under it is closed; so that is asked too.
#if defined(_WIN32)
bool hasErrorStream() {
  HANDLE handle = GetStdHandle(STD_ERROR_HANDLE);
  return _fileno(stderr) >= 0 && handle != nullptr && handle != INVALID_HANDLE_VALUE;
}
#else
bool hasErrorStream() {
  const int descriptor = fileno(stderr);
  return descriptor >= 0 && fcntl(descriptor, F_GETFD) != -1;
}
#endif

}  // namespace

bool dumpVersionInfo() {
  const bool dump = envFlag("QUILLON_DUMP_VERSION_INFO") && hasErrorStream();
  if (dump) {
    // While the library is loaded, nobody else may have set the standard streams up yet.
    const std::ios_base::Init streams;
    std::ostringstream line;
    line << std::setw(16) << "VtlCmdTranslation"
         << ": " << buildBanner();
    std::cerr << line.str() << std::endl;
  }
  return dump;
}

}  // namespace vtlcmd::build_identity
