#include <dlfcn.h>

#include "platform/library_file.h"

namespace vtlcmd::runner {

void* openLibrary(const std::filesystem::path& file) {
  return ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

void closeLibrary(void* library) { ::dlclose(library); }

std::string libraryError() {
  // The text is kept by thread.
  const char* error = ::dlerror();  // NOLINT(concurrency-mt-unsafe)
  return error == nullptr ? "unknown error" : error;
}

LibraryFunction functionOf(void* library, const char* name) {
  return reinterpret_cast<LibraryFunction>(::dlsym(library, name));
}

}  // namespace vtlcmd::runner
