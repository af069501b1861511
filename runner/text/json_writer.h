#pragma once

#include <charconv>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

namespace vtlcmd::runner {

/// Builds one JSON text without blanks. Commas come by themselves; whoever calls closes what is
/// opened and puts a key before each value of an object.
class JsonWriter {
 public:
  void open(char bracket) {
    separate();
    text_ += bracket;
  }
  void close(char bracket) { text_ += bracket; }

  void key(std::string_view name) {
    text(name);
    text_ += ':';
  }

  /// As `jsonText` writes it.
  void text(std::string_view value);
  void boolean(bool value) { raw(value ? "true" : "false"); }
  void null() { raw("null"); }

  /// All 64 bits of an integer. For floating types the shortest text that reads back as the same
  /// value of that type; "nan", "inf" and "-inf" as texts.
  template <typename T>
  requires std::integral<T> || std::floating_point<T>
  void number(T value) {
    if constexpr (std::floating_point<T>) {
      if (std::isnan(value)) return raw("\"nan\"");
      if (std::isinf(value)) return raw(value > 0 ? "\"inf\"" : "\"-inf\"");
      // Without a point readers take it for an integer, and lose the sign.
      if (value == 0 && std::signbit(value)) return raw("-0.0");
    }
    // Long enough for the shortest text of any number.
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    raw({digits, static_cast<std::size_t>(end - digits)});
  }

  /// A value that is JSON already.
  void raw(std::string_view json) {
    separate();
    text_ += json;
  }

  const std::string& json() const noexcept { return text_; }

 private:
  void separate() {
    constexpr std::string_view beforeFirst = "{[:";
    if (!text_.empty() && beforeFirst.find(text_.back()) == std::string_view::npos) text_ += ',';
  }

  std::string text_;
};

}  // namespace vtlcmd::runner
