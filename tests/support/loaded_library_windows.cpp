#include <cstdint>
#include <cstring>
#include <windows.h>

#include "support/loaded_library.h"

namespace vtlcmd::testing {
namespace {

/// Where an address really leads: a table's entry for an imported function is the address of a jump
/// through the import list.
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

void* loadLibrary(const char* file) { return LoadLibraryA(file); }

bool unloadLibrary(void* library) { return FreeLibrary(static_cast<HMODULE>(library)) != 0; }

bool isLibraryLoaded(const char* file) { return GetModuleHandleA(file) != nullptr; }

LibraryFunction functionOf(void* library, const char* name) {
  return reinterpret_cast<LibraryFunction>(GetProcAddress(static_cast<HMODULE>(library), name));
}

std::string libraryAt(const void* address) {
  HMODULE library = nullptr;
  char path[MAX_PATH];
  if (GetModuleHandleExA(
          GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
          static_cast<const char*>(behindJump(address)), &library) == 0)
    return {};
  const std::string file(path, GetModuleFileNameA(library, path, sizeof path));
  return file.substr(file.find_last_of("\\/") + 1);
}

}  // namespace vtlcmd::testing
