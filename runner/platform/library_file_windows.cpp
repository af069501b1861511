#include <iterator>
#include <windows.h>

#include "platform/library_file.h"
#include "text/path_text.h"

namespace vtlcmd::runner {

void* openLibrary(const std::filesystem::path& file) {
  // What the library needs stands beside it, wherever this program is.
  return LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

void closeLibrary(void* library) { FreeLibrary(static_cast<HMODULE>(library)); }

std::string libraryError() {
  const DWORD code = GetLastError();
  // The standard library's text of an error has no place for the file that some texts speak of.
  DWORD_PTR arguments[] = {reinterpret_cast<DWORD_PTR>(L"the file")};
  wchar_t text[512];
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_ARGUMENT_ARRAY,
                                      nullptr, code, 0, text, static_cast<DWORD>(std::size(text)),
                                      reinterpret_cast<va_list*>(arguments));
  const std::wstring line(text, length);
  const std::size_t end = line.find_last_not_of(L".\r\n");
  if (end == std::wstring::npos) return "error " + std::to_string(code);
  return utf8Path(line.substr(0, end + 1));
}

LibraryFunction functionOf(void* library, const char* name) {
  return reinterpret_cast<LibraryFunction>(GetProcAddress(static_cast<HMODULE>(library), name));
}

}  // namespace vtlcmd::runner
