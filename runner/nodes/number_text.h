#pragma once

#include <charconv>
#include <concepts>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>

#include "nodes/node_operation.h"
#include "text/library_text.h"

namespace vtlcmd::runner {

/// The shortest text that `readNumber` reads as the same value.
template <typename T>
requires std::is_arithmetic_v<T> std::string numberText(T value) {
  if constexpr (std::same_as<T, bool>) {
    return value ? "true" : "false";
  } else {
    // Long enough for the shortest text of any double.
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, value).ptr};
  }
}

/// The value that a whole text stands for: a decimal number without plus sign or spaces, for a bool
/// 'true' or 'false'. Throws NodeError, which calls the type `typeName`.
template <typename T>
requires std::is_arithmetic_v<T> T readNumber(std::string_view text, std::string_view typeName) {
  if constexpr (std::same_as<T, bool>) {
    if (text == "true" || text == "false") return text == "true";
  } else {
    T number{};
    const char* const end = text.data() + text.size();
    const std::from_chars_result read = std::from_chars(text.data(), end, number);
    if (read.ptr == end && read.ec == std::errc::result_out_of_range)
      throw NodeError(inQuotes(text) + " is out of range for " + std::string(typeName));
    if (read.ptr == end && read.ec == std::errc()) return number;
  }
  throw NodeError(inQuotes(text) + " doesn't read as " + std::string(typeName));
}

}  // namespace vtlcmd::runner
