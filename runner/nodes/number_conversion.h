#pragma once

#include <cmath>
#include <concepts>
#include <limits>
#include <type_traits>
#include <utility>

namespace vtlcmd::runner {

/// A converted number and whether it is another one than before, apart from rounding.
template <typename T>
struct Converted {
  T number;
  bool clamped = false;
};

namespace number_conversion {

template <std::floating_point To>
Converted<To> narrow(double number) {
  // Half a step above the greatest float: what is below rounds to it, what is not is infinite.
  constexpr double firstInfinite = 0x1.ffffffp127;
  if constexpr (std::is_same_v<To, float>) {
    constexpr double greatest = std::numeric_limits<float>::max();
    if (std::isfinite(number) && std::abs(number) > greatest) {
      const bool isInfinite = std::abs(number) >= firstInfinite;
      const float size =
          isInfinite ? std::numeric_limits<float>::infinity() : std::numeric_limits<float>::max();
      return {std::copysign(size, static_cast<float>(std::copysign(1.0, number))), isInfinite};
    }
  }
  return {static_cast<To>(number)};
}

template <std::integral To>
Converted<To> truncate(double number) {
  using Limits = std::numeric_limits<To>;
  if (std::isnan(number)) return {0, true};
  const double whole = std::trunc(number);
  // One above the greatest number is a power of two, so a double holds it; the greatest may not be.
  const double end = std::ldexp(1.0, Limits::digits);
  if (whole >= end) return {Limits::max(), true};
  if (whole < static_cast<double>(Limits::min())) return {Limits::min(), true};
  return {static_cast<To>(whole)};
}

}  // namespace number_conversion

/// To bool: whether the number isn't zero. To an integer: cut towards zero; what is out of range
/// becomes the nearest number in range, a NaN 0. To a float: rounded to nearest.
template <typename To, typename From>
Converted<To> convertNumber(From number) {
  if constexpr (std::is_same_v<To, bool>) {
    return {number != From{0}};
  } else if constexpr (std::is_floating_point_v<From>) {
    if constexpr (std::is_floating_point_v<To>)
      return number_conversion::narrow<To>(number);
    else
      return number_conversion::truncate<To>(number);
  } else if constexpr (std::is_floating_point_v<To>) {
    return {static_cast<To>(number)};
  } else if constexpr (std::is_same_v<From, bool>) {
    return {static_cast<To>(number)};
  } else {
    if (std::in_range<To>(number)) return {static_cast<To>(number)};
    return {number < From{0} ? std::numeric_limits<To>::min() : std::numeric_limits<To>::max(),
            true};
  }
}

}  // namespace vtlcmd::runner
