#include <string>
#include <system_error>
#include <windows.h>

#include "vtlcmd/translation/scene_path.h"

namespace vtlcmd {

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

}  // namespace vtlcmd
