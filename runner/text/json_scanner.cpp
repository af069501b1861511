#include "text/json_scanner.h"

#include <cstddef>
#include <string_view>

namespace vtlcmd::runner {
namespace {

constexpr std::string_view jsonBlanks = " \t\r\n";

bool isIn(std::string_view characters, std::istream::int_type found) {
  return characters.find(std::istream::traits_type::to_char_type(found)) != std::string_view::npos;
}

}  // namespace

bool JsonScanner::take(char character) {
  skipBlanks();
  if (bytes_.sgetc() != Traits::to_int_type(character)) return false;
  bytes_.sbumpc();
  return true;
}

void JsonScanner::require(char character) {
  if (!take(character)) throw JsonScanError();
}

std::string JsonScanner::value() {
  std::string text;
  scanValue(&text);
  return text;
}

bool JsonScanner::isAtEnd() {
  skipBlanks();
  return bytes_.sgetc() == Traits::eof();
}

void JsonScanner::skipBlanks() {
  while (bytes_.sgetc() != Traits::eof() && isIn(jsonBlanks, bytes_.sgetc())) bytes_.sbumpc();
}

char JsonScanner::next(std::string* text) {
  const Traits::int_type found = bytes_.sbumpc();
  if (found == Traits::eof()) throw JsonScanError();
  const char character = Traits::to_char_type(found);
  if (text != nullptr) *text += character;
  return character;
}

void JsonScanner::scanValue(std::string* text) {
  skipBlanks();
  const Traits::int_type first = bytes_.sgetc();
  if (first == Traits::eof()) throw JsonScanError();
  if (isIn("{[", first)) return scanBrackets(text);
  if (isIn("\"", first)) return scanString(text);
  scanWord(text);
}

void JsonScanner::scanString(std::string* text) {
  next(text);
  for (char character = next(text); character != '"'; character = next(text)) {
    if (character == '\\') next(text);
  }
}

void JsonScanner::scanBrackets(std::string* text) {
  std::size_t depth = 0;
  do {
    if (bytes_.sgetc() == Traits::to_int_type('"')) {
      scanString(text);
      continue;
    }
    const char character = next(text);
    if (character == '{' || character == '[') ++depth;
    if (character == '}' || character == ']') --depth;
  } while (depth > 0);
}

/// A number, true, false or null.
void JsonScanner::scanWord(std::string* text) {
  constexpr std::string_view behind = " \t\r\n,:]}";
  if (isIn(behind, bytes_.sgetc())) throw JsonScanError();
  while (bytes_.sgetc() != Traits::eof() && !isIn(behind, bytes_.sgetc())) next(text);
}

}  // namespace vtlcmd::runner
