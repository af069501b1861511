#include <cstdlib>
#include <io.h>

#include "platform/descriptors.h"

namespace vtlcmd::validator {

int descriptorOf(std::FILE* file) { return _fileno(file); }

int duplicate(int descriptor) { return _dup(descriptor); }

void redirect(int source, int target) { _dup2(source, target); }

void closeDescriptor(int descriptor) { _close(descriptor); }

void setEnvironment(const char* name, const char* value) {
  _putenv_s(name, value == nullptr ? "" : value);
}

}  // namespace vtlcmd::validator
