#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vtlcmd::oracle {

/// What became of a text that should be a number; numbered as the parser's own status is.
enum class Outcome : int { value = 0, trailingText = 1, noNumber = 2, outOfRange = 3 };

template <typename T>
struct Parsed {
  Outcome outcome;
  /// Present for the first two outcomes.
  std::optional<T> value;
};

/// Works out what a number parser has to answer for a text without NUL bytes, from digits and exact
/// integers alone. For std::int32_t, std::uint32_t, std::int64_t, std::uint64_t, float, double.
template <typename T>
Parsed<T> parseModel(std::string_view text);

}  // namespace vtlcmd::oracle
