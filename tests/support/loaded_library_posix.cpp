#include <dlfcn.h>

#include "support/loaded_library.h"

namespace vtlcmd::testing {

void* loadLibrary(const char* file) { return dlopen(file, RTLD_NOW | RTLD_LOCAL); }

bool unloadLibrary(void* library) { return dlclose(library) == 0; }

bool isLibraryLoaded(const char* file) {
  void* again = dlopen(file, RTLD_NOW | RTLD_NOLOAD);
  if (again != nullptr) dlclose(again);
  return again != nullptr;
}

LibraryFunction functionOf(void* library, const char* name) {
  return reinterpret_cast<LibraryFunction>(dlsym(library, name));
}

std::string libraryAt(const void* address) {
  Dl_info info{};
  if (dladdr(address, &info) == 0) return {};
  const std::string path = info.dli_fname;
  return path.substr(path.rfind('/') + 1);
}

}  // namespace vtlcmd::testing
