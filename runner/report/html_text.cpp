#include "report/html_text.h"

#include <optional>

#include "text/utf8.h"

namespace vtlcmd::runner {
namespace {

constexpr char32_t replacement = 0xFFFD;

bool isUnprintable(char32_t character) {
  return (character < 0x20 && character != '\n' && character != '\t') ||
         (character >= 0x7F && character < 0xA0);
}

void append(std::string& html, char32_t character) {
  switch (character) {
    case '&':
      html += "&amp;";
      break;
    case '<':
      html += "&lt;";
      break;
    case '>':
      html += "&gt;";
      break;
    case '"':
      html += "&quot;";
      break;
    case '\'':
      html += "&#39;";
      break;
    default:
      appendCharacter(html, isUnprintable(character) ? replacement : character);
  }
}

}  // namespace

std::string htmlText(std::string_view text) {
  std::string html;
  html.reserve(text.size());
  while (!text.empty()) {
    const std::optional<char32_t> character = takeCharacter(text);
    append(html, character.value_or(replacement));
    if (!character) text.remove_prefix(1);
  }
  return html;
}

}  // namespace vtlcmd::runner
