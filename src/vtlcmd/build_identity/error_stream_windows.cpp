#include <cstdio>
#include <windows.h>

#include "vtlcmd/build_identity/build_identity.h"

// A stream keeps its number when what is under it is closed; so that is asked too.
bool vtlcmd::build_identity::hasErrorStream() {
  HANDLE handle = GetStdHandle(STD_ERROR_HANDLE);
  return _fileno(stderr) >= 0 && handle != nullptr && handle != INVALID_HANDLE_VALUE;
}
