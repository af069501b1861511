#include "execution/plug_in.h"

#include <array>
#include <string>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace vtlcmd {
namespace {

constexpr const char* entryName = "createVantrelTypeTranslation";
using Entry = VantrelGraph::Executor::TypeTranslation* (*)();

#if defined(_WIN32)

std::string lastError() { return std::system_category().message(static_cast<int>(GetLastError())); }

void* openLibrary(const std::filesystem::path& file) { return LoadLibraryW(file.c_str()); }

void closeLibrary(void* library) { FreeLibrary(static_cast<HMODULE>(library)); }

Entry entryOf(void* library) {
  return reinterpret_cast<Entry>(GetProcAddress(static_cast<HMODULE>(library), entryName));
}

std::filesystem::path ownFile() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

constexpr std::array plugInPlaces{"VtlCmdTranslation.dll", "libVtlCmdTranslation.dll"};

#else

std::string lastError() {
  // The text is kept by thread.
  const char* error = ::dlerror();  // NOLINT(concurrency-mt-unsafe)
  return error == nullptr ? "unknown error" : error;
}

void* openLibrary(const std::filesystem::path& file) {
  return ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

void closeLibrary(void* library) { ::dlclose(library); }

Entry entryOf(void* library) { return reinterpret_cast<Entry>(::dlsym(library, entryName)); }

std::filesystem::path ownFile() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error);
}

constexpr std::array plugInPlaces{"../lib/libVtlCmdTranslation.so",
                                  "../lib/vtlcmd/libVtlCmdTranslation.so"};

#endif

}  // namespace

PlugIn::PlugIn(const std::filesystem::path& file) {
  // A bare name would be searched for among the system's libraries.
  std::error_code ignored;
  const std::filesystem::path absolute = std::filesystem::absolute(file, ignored);
  library_ = openLibrary(absolute);
  if (library_ == nullptr)
    throw PlugInError("the plug-in " + file.string() + " can't be loaded: " + lastError());
  const Entry create = entryOf(library_);
  VantrelGraph::Executor::TypeTranslation* created = create == nullptr ? nullptr : create();
  if (created == nullptr) {
    closeLibrary(library_);
    throw PlugInError(file.string() + (create == nullptr ? " is no plug-in: it doesn't export " +
                                                               std::string(entryName)
                                                         : " gave no translation: out of memory"));
  }
  // The entry makes objects of the interface with all twelve operations, by agreement.
  translation_ = static_cast<Translation*>(created);
}

PlugIn::~PlugIn() {
  translation_->destroy();
  closeLibrary(library_);
}

std::filesystem::path ownPlugIn() {
  const std::filesystem::path folder = ownFile().parent_path();
  for (const char* place : plugInPlaces) {
    std::error_code error;
    std::filesystem::path file = (folder / place).lexically_normal();
    if (std::filesystem::exists(file, error)) return file;
  }
  return (folder / plugInPlaces.front()).lexically_normal();
}

}  // namespace vtlcmd
