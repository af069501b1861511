#include "text/path_text.h"

#include <filesystem>
#include <system_error>

#include "text/utf8.h"

namespace vtlcmd {

#if defined(_WIN32)

HostPath widePath(std::string_view path) { return std::filesystem::path(path).wstring(); }

std::string utf8Path(const HostPath& path) {
  const std::u8string text = std::filesystem::path(path).u8string();
  return {text.begin(), text.end()};
}

#else

HostPath widePath(std::string_view path) {
  HostPath wide;
  while (!path.empty()) {
    const std::optional<char32_t> character = takeCharacter(path);
    if (!character) throw std::system_error(std::make_error_code(std::errc::illegal_byte_sequence));
    wide.push_back(static_cast<wchar_t>(*character));
  }
  return wide;
}

std::string utf8Path(const HostPath& path) {
  std::string text;
  for (const wchar_t wide : path) appendCharacter(text, static_cast<char32_t>(wide));
  return text;
}

#endif

}  // namespace vtlcmd
