#include <string>
#include <system_error>

#include "vtlcmd/translation/scene_path.h"

namespace vtlcmd {

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

}  // namespace vtlcmd
