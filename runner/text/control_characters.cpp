#include "text/control_characters.h"

#include "text/utf8.h"

namespace vtlcmd::runner {
namespace {

bool isControl(char32_t character) {
  return character < 0x20 || (character >= 0x7f && character < 0xa0);
}

void appendHexadecimal(std::string& text, std::string_view bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  for (const char byte : bytes) {
    const auto number = static_cast<unsigned char>(byte);
    text += "\\x";
    text += digits[number >> 4U];
    text += digits[number & 0xFU];
  }
}

}  // namespace

std::string withoutControls(std::string_view text, std::string_view kept) {
  std::string safe;
  safe.reserve(text.size());
  while (!text.empty()) {
    std::string_view rest = text;
    const std::optional<char32_t> character = takeCharacter(rest);
    if (!character) rest.remove_prefix(1);
    const std::string_view bytes = text.substr(0, text.size() - rest.size());
    const bool isKept = kept.find(bytes) != std::string_view::npos;
    if (character && (isKept || !isControl(*character))) {
      safe += bytes;
    } else {
      appendHexadecimal(safe, bytes);
    }
    text = rest;
  }
  return safe;
}

}  // namespace vtlcmd::runner
