#include "text/shell_quoting.h"

#include <algorithm>

namespace vtlcmd::runner {
namespace {

bool isPlain(char character) {
  constexpr std::string_view marks = "%+,-./:=@_";
  return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
         (character >= 'a' && character <= 'z') || marks.find(character) != std::string_view::npos;
}

}  // namespace

std::string shellQuoted(std::string_view word) {
  if (!word.empty() && std::all_of(word.begin(), word.end(), isPlain)) return std::string(word);
  std::string quoted = "'";
  for (const char character : word) {
    // A quote can't stand within quotes: they end, it follows escaped, and they begin again.
    if (character == '\'') {
      quoted += "'\\''";
    } else {
      quoted += character;
    }
  }
  return quoted + "'";
}

std::string shellQuotedWords(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) {
    if (!text.empty()) text += ' ';
    text += shellQuoted(word);
  }
  return text;
}

}  // namespace vtlcmd::runner
