#include <string>
#include <system_error>

#include "translation/scene_path.h"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace vtlcmd {

#if defined(_WIN32)

std::string narrowPath(const HostPath& path) {
  if (path.empty()) return {};
  const UINT codePage = AreFileApisANSI() ? CP_ACP : CP_OEMCP;
  const bool unicode = (codePage == CP_ACP ? GetACP() : GetOEMCP()) == CP_UTF8;
  // Neither a look-alike nor a default character may stand in for what the code page lacks. UTF-8
  // lacks nothing but lone surrogates, and refuses both ways of asking.
  const DWORD flags = unicode ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
  BOOL usedDefault = FALSE;
  BOOL* const askDefault = unicode ? nullptr : &usedDefault;
  const auto convert = [&](char* buffer, int size) {
    const int length =
        WideCharToMultiByte(codePage, flags, path.data(), static_cast<int>(path.size()), buffer,
                            size, nullptr, askDefault);
    if (length == 0 || usedDefault) {
      const DWORD error = length == 0 ? GetLastError() : ERROR_NO_UNICODE_TRANSLATION;
      throw std::system_error(static_cast<int>(error), std::system_category());
    }
    return length;
  };
  std::string text(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(text.data(), static_cast<int>(text.size()));
  return text;
}

#else

std::string narrowPath(const HostPath& path) {
  std::string text;
  for (const wchar_t character : path) {
    const auto code = static_cast<char32_t>(character);
    const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
      throw std::system_error(std::make_error_code(std::errc::illegal_byte_sequence));
    }
    if (code < 0x80) {
      put(code);
    } else if (code < 0x800) {
      put(0xC0 | code >> 6);
      put(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
      put(0xE0 | code >> 12);
      put(0x80 | (code >> 6 & 0x3F));
      put(0x80 | (code & 0x3F));
    } else {
      put(0xF0 | code >> 18);
      put(0x80 | (code >> 12 & 0x3F));
      put(0x80 | (code >> 6 & 0x3F));
      put(0x80 | (code & 0x3F));
    }
  }
  return text;
}

#endif

}  // namespace vtlcmd
