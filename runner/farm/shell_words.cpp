#include "farm/shell_words.h"

namespace vtlcmd::runner {

std::string shellWord(std::string_view word) {
  constexpr std::string_view plain =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-+./,:=@%";
  if (!word.empty() && word.find_first_not_of(plain) == std::string_view::npos)
    return std::string(word);
  std::string quoted = "'";
  for (const char character : word) {
    if (character == '\'') {
      quoted += "'\\''";
    } else {
      quoted += character;
    }
  }
  return quoted + "'";
}

std::string shellWords(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) {
    if (!text.empty()) text += ' ';
    text += shellWord(word);
  }
  return text;
}

}  // namespace vtlcmd::runner
