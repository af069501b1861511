#include <cstdlib>
#include <unistd.h>

#include "platform/descriptors.h"

namespace vtlcmd::validator {

int descriptorOf(std::FILE* file) { return ::fileno(file); }

int duplicate(int descriptor) { return ::dup(descriptor); }

void redirect(int source, int target) { ::dup2(source, target); }

void closeDescriptor(int descriptor) { ::close(descriptor); }

std::FILE* temporaryFile() { return std::tmpfile(); }

void setEnvironment(const char* name, const char* value) {
  // Nobody else reads the environment meanwhile: a check has its process to itself.
  if (value == nullptr) {
    ::unsetenv(name);  // NOLINT(concurrency-mt-unsafe)
  } else {
    ::setenv(name, value, 1);  // NOLINT(concurrency-mt-unsafe)
  }
}

}  // namespace vtlcmd::validator
