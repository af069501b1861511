#include <cstdint>
#include <cstring>
#include <windows.h>

#include "platform/library.h"

namespace vtlcmd::validator {
namespace {

/// A table's entry for an imported function is the address of a jump through the import list.
const void* behindJump(const void* address) {
  const auto* code = static_cast<const unsigned char*>(address);
  if (code[0] != 0xFF || code[1] != 0x25) return address;
  std::int32_t distance = 0;
  std::memcpy(&distance, code + 2, sizeof distance);
  const void* target = nullptr;
  std::memcpy(&target, code + 6 + distance, sizeof target);
  return target;
}

}  // namespace

void* openLibrary(const std::filesystem::path& file) {
  // What the library needs stands beside it or beside this program.
  return LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

std::string libraryError() { return "error " + std::to_string(GetLastError()) + " of the loader"; }

void closeLibrary(void* library) { FreeLibrary(static_cast<HMODULE>(library)); }

bool isLoaded(const std::filesystem::path& file) {
  return GetModuleHandleW(file.c_str()) != nullptr;
}

LibraryFunction functionOf(void* library, const char* name) {
  return reinterpret_cast<LibraryFunction>(GetProcAddress(static_cast<HMODULE>(library), name));
}

std::filesystem::path fileAt(const void* address) {
  HMODULE library = nullptr;
  if (GetModuleHandleExW(
          GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
          static_cast<const wchar_t*>(behindJump(address)), &library) == 0)
    return {};
  wchar_t path[MAX_PATH];
  return std::wstring(path, GetModuleFileNameW(library, path, MAX_PATH));
}

}  // namespace vtlcmd::validator
