#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

#include "vtlcmd/build_identity/build_identity.h"

// A stream keeps its number when what is under it is closed; so that is asked too.
bool vtlcmd::build_identity::hasErrorStream() {
  const int descriptor = fileno(stderr);
  return descriptor >= 0 && fcntl(descriptor, F_GETFD) != -1;
}
