#pragma once

#include <cmath>
#include <concepts>
#include <string_view>

#include "vtlcmd/host/imports/orvel_string.h"

namespace vtlcmd::runner {

/// Texts in the order of their bytes.
inline std::string_view bytesOf(const Orvel::String& text) {
  const Orvel::StringView view = text;
  return {view.data, static_cast<std::size_t>(view.size)};
}

/// Whether a comes before b in an order that has a place for every value: -0 before 0, a NaN behind
/// all numbers and level with every other NaN, false before true, texts by their bytes.
inline constexpr auto comesBefore = []<typename T>(const T& a, const T& b) -> bool {
  if constexpr (std::floating_point<T>) {
    if (std::isnan(a) || std::isnan(b)) return std::isnan(b) && !std::isnan(a);
    return a < b || (a == b && std::signbit(a) && !std::signbit(b));
  } else if constexpr (std::same_as<T, Orvel::String>) {
    return bytesOf(a) < bytesOf(b);
  } else {
    return a < b;
  }
};

}  // namespace vtlcmd::runner
