#include "text/path_text.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <system_error>

namespace vtlcmd {

#if defined(_WIN32)

HostPath widePath(std::string_view path) { return std::filesystem::path(path).wstring(); }

std::string utf8Path(const HostPath& path) {
  const std::u8string text = std::filesystem::path(path).u8string();
  return {text.begin(), text.end()};
}

#else

namespace {

/// A way to write a character: the bits that mark its first byte, the bytes that follow, and the
/// least character that may be written that way.
struct Form {
  unsigned char mask;
  unsigned char mark;
  std::size_t following;
  char32_t least;
};

constexpr std::array<Form, 4> forms{{{0x80, 0x00, 0, 0x0},
                                     {0xE0, 0xC0, 1, 0x80},
                                     {0xF0, 0xE0, 2, 0x800},
                                     {0xF8, 0xF0, 3, 0x10000}}};

bool isCharacter(char32_t code) { return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF); }

[[noreturn]] void refuse() {
  throw std::system_error(std::make_error_code(std::errc::illegal_byte_sequence));
}

/// Takes the first character off a text.
char32_t takeCharacter(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  for (const Form& form : forms) {
    if ((first & form.mask) != form.mark) continue;
    if (text.size() <= form.following) refuse();
    char32_t character = first & static_cast<unsigned char>(~form.mask);
    for (std::size_t i = 1; i <= form.following; ++i) {
      const auto byte = static_cast<unsigned char>(text[i]);
      if ((byte & 0xC0U) != 0x80U) refuse();
      character = (character << 6U) | (byte & 0x3FU);
    }
    if (character < form.least || !isCharacter(character)) refuse();
    text.remove_prefix(form.following + 1);
    return character;
  }
  refuse();
}

}  // namespace

HostPath widePath(std::string_view path) {
  HostPath wide;
  while (!path.empty()) wide.push_back(static_cast<wchar_t>(takeCharacter(path)));
  return wide;
}

std::string utf8Path(const HostPath& path) {
  std::string text;
  for (const wchar_t wide : path) {
    const auto code = static_cast<char32_t>(wide);
    const char32_t character = isCharacter(code) ? code : U'?';
    std::size_t following = 0;
    while (following + 1 < forms.size() && character >= forms[following + 1].least) ++following;
    const auto put = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    put(forms[following].mark | (character >> (6 * following)));
    while (following-- > 0) put(0x80U | ((character >> (6 * following)) & 0x3FU));
  }
  return text;
}

#endif

}  // namespace vtlcmd
