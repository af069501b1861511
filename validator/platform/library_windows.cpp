#include <cstdint>
#include <cstring>
#include <iterator>
#include <windows.h>

#include "platform/library.h"
#include "platform/wide_text_windows.h"

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
  return LoadLibraryExW(file.c_str(), nullptr,
                        LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
}

std::string libraryError() {
  const DWORD code = GetLastError();
  // The standard library's text of an error has no place for the file that some texts speak of.
  DWORD_PTR arguments[] = {reinterpret_cast<DWORD_PTR>(L"the file")};
  wchar_t text[512];
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_ARGUMENT_ARRAY,
                                      nullptr, code, 0, text, static_cast<DWORD>(std::size(text)),
                                      reinterpret_cast<va_list*>(arguments));
  const std::wstring_view line(text, length);
  const std::size_t end = line.find_last_not_of(L".\r\n");
  if (end == std::wstring_view::npos) return "error " + std::to_string(code);
  return utf8(line.substr(0, end + 1));
}

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
  constexpr std::size_t longestPath = 32768;
  std::wstring path(longestPath, L'\0');
  path.resize(GetModuleFileNameW(library, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

}  // namespace vtlcmd::validator
