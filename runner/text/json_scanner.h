#pragma once

#include <istream>
#include <stdexcept>
#include <string>

namespace vtlcmd::runner {

/// Text that ends or goes on where JSON doesn't.
class JsonScanError : public std::runtime_error {
 public:
  JsonScanError() : std::runtime_error("this is no JSON") {}
};

/// Walks along JSON in a stream and cuts values out of it, so that a document needn't be in memory
/// as a whole. What stands inside of a value is left to whoever parses it.
class JsonScanner {
 public:
  /// From where the stream stands. It must outlive this.
  explicit JsonScanner(std::istream& stream) : bytes_(*stream.rdbuf()) {}

  /// Goes behind the character if it is the next one that isn't blank; whether it was.
  bool take(char character);
  /// Throws JsonScanError if it isn't.
  void require(char character);

  /// Goes behind the next value. Throws JsonScanError when there is none or it isn't whole.
  void skipValue() { scanValue(nullptr); }
  /// The same, and gives its text.
  std::string value();

  /// Whether only blanks are left.
  bool isAtEnd();

 private:
  using Traits = std::istream::traits_type;

  void skipBlanks();
  char next(std::string* text);
  void scanValue(std::string* text);
  void scanString(std::string* text);
  void scanBrackets(std::string* text);
  void scanWord(std::string* text);

  std::streambuf& bytes_;
};

}  // namespace vtlcmd::runner
