#include "text/json_text.h"

#include <string_view>

#include "text/json.h"

namespace vtlcmd::runner {
namespace {

constexpr char deleteCharacter = '\x7f';
/// What the characters U+0080 to U+00BF begin with in UTF-8; those up to U+009F are controls.
constexpr char latinLead = '\xc2';

bool isControlBehindLead(char c) { return static_cast<unsigned char>(c) < 0xa0; }

void appendEscape(std::string& text, char last) {
  constexpr std::string_view digits = "0123456789abcdef";
  const auto number = static_cast<unsigned char>(last);
  text.append("\\u00").append(1, digits[number >> 4U]).append(1, digits[number & 0xFU]);
}

}  // namespace

std::string jsonText(const Json& json, int indent) {
  std::string text = json.dump(indent, ' ', false, Json::error_handler_t::replace);
  if (text.find_first_of({deleteCharacter, latinLead}) == std::string::npos) return text;
  // Such characters stand in JSON's texts only.
  std::string safe;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == deleteCharacter) {
      appendEscape(safe, text[i]);
    } else if (text[i] == latinLead && isControlBehindLead(text[i + 1])) {
      appendEscape(safe, text[++i]);
    } else {
      safe += text[i];
    }
  }
  return safe;
}

std::string plainText(const Json& json) {
  return json.is_string() ? json.get<std::string>() : jsonText(json);
}

}  // namespace vtlcmd::runner
