#include "text/utf8.h"

#include <array>
#include <cstddef>

namespace vtlcmd::runner {
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

}  // namespace

std::optional<char32_t> takeCharacter(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  for (const Form& form : forms) {
    if ((first & form.mask) != form.mark) continue;
    if (text.size() <= form.following) return std::nullopt;
    char32_t character = first & static_cast<unsigned char>(~form.mask);
    for (std::size_t i = 1; i <= form.following; ++i) {
      const auto byte = static_cast<unsigned char>(text[i]);
      if ((byte & 0xC0U) != 0x80U) return std::nullopt;
      character = (character << 6U) | (byte & 0x3FU);
    }
    if (character < form.least || !isCharacter(character)) return std::nullopt;
    text.remove_prefix(form.following + 1);
    return character;
  }
  return std::nullopt;
}

void appendCharacter(std::string& text, char32_t character) {
  if (!isCharacter(character)) character = U'?';
  std::size_t following = 0;
  while (following + 1 < forms.size() && character >= forms[following + 1].least) ++following;
  const auto put = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  put(forms[following].mark | (character >> (6 * following)));
  while (following-- > 0) put(0x80U | ((character >> (6 * following)) & 0x3FU));
}

}  // namespace vtlcmd::runner
