#include <cstdlib>
#include <io.h>
#include <windows.h>

#include "platform/descriptors.h"

namespace vtlcmd::validator {

int descriptorOf(std::FILE* file) { return _fileno(file); }

int duplicate(int descriptor) { return _dup(descriptor); }

void redirect(int source, int target) { _dup2(source, target); }

void closeDescriptor(int descriptor) { _close(descriptor); }

// The C library's own makes its file where only administrators may write.
std::FILE* temporaryFile() {
  wchar_t folder[MAX_PATH + 1];
  wchar_t file[MAX_PATH];
  if (GetTempPathW(MAX_PATH + 1, folder) == 0 || GetTempFileNameW(folder, L"vtl", 0, file) == 0)
    return nullptr;
  // D: it is deleted when the last one closes it.
  return _wfopen(file, L"w+bTD");
}

void setEnvironment(const char* name, const char* value) {
  _putenv_s(name, value == nullptr ? "" : value);
}

}  // namespace vtlcmd::validator
