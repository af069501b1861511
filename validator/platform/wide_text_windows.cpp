#include "platform/wide_text_windows.h"

#include <windows.h>

namespace vtlcmd::validator {

std::string utf8(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  const auto convert = [&](char* out, int room) {
    return WideCharToMultiByte(CP_UTF8, 0, text.data(), size, out, room, nullptr, nullptr);
  };
  std::string result(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(result.data(), static_cast<int>(result.size()));
  return result;
}

std::wstring wide(std::string_view text) {
  const int size = static_cast<int>(text.size());
  const auto convert = [&](wchar_t* out, int room) {
    return MultiByteToWideChar(CP_UTF8, 0, text.data(), size, out, room);
  };
  std::wstring result(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
  convert(result.data(), static_cast<int>(result.size()));
  return result;
}

}  // namespace vtlcmd::validator
