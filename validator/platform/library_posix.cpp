#include <dlfcn.h>

#include "platform/library.h"

namespace vtlcmd::validator {

void* openLibrary(const std::filesystem::path& file) {
  return ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

std::string libraryError() {
  // The text is kept by thread.
  const char* error = ::dlerror();  // NOLINT(concurrency-mt-unsafe)
  return error == nullptr ? "unknown error" : error;
}

void closeLibrary(void* library) { ::dlclose(library); }

bool isLoaded(const std::filesystem::path& file) {
  void* library = ::dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (library != nullptr) ::dlclose(library);
  return library != nullptr;
}

LibraryFunction functionOf(void* library, const char* name) {
  return reinterpret_cast<LibraryFunction>(::dlsym(library, name));
}

std::filesystem::path fileAt(const void* address) {
  Dl_info info{};
  if (::dladdr(address, &info) == 0) return {};
  return info.dli_fname;
}

}  // namespace vtlcmd::validator
