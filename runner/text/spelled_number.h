#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace vtlcmd::runner {

/// The number that a whole text spells, in decimal digits whatever the locale. Nothing for any
/// other text, nor for a number beyond the range of T.
template <typename T>
std::optional<T> spelledNumber(std::string_view text) {
  T number{};
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

}  // namespace vtlcmd::runner
