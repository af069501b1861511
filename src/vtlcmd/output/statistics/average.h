#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

namespace vtlcmd {

static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);

/// 2 to the 63rd: the first number that a signed 64-bit integer can't hold.
inline constexpr float twoTo63 = 9223372036854775808.0F;

/// Toward zero. What Integer can't hold, a NaN included, gives its most negative number, as the
/// reference processor's conversion does.
template <typename Integer>
constexpr Integer truncate(float number) noexcept {
  constexpr auto lowest = static_cast<float>(std::numeric_limits<Integer>::min());
  return number >= lowest && number < -lowest ? static_cast<Integer>(number)
                                              : std::numeric_limits<Integer>::min();
}

/// The average of a sum in the width that the report shows it in. Integers and floats divide in
/// single precision, double in double precision; `count` is at least 1 and rounds like any number.
/// The integer in between is wider for some types: only its low bits are shown.
template <typename T>
constexpr T averageOf(T sum, std::uint64_t count) noexcept {
  if constexpr (std::is_floating_point_v<T>) {
    return sum / static_cast<T>(count);
  } else {
    const float quotient = static_cast<float>(sum) / static_cast<float>(count);
    if constexpr (std::is_same_v<T, std::uint64_t>) {
      if (quotient < twoTo63) return static_cast<T>(truncate<std::int64_t>(quotient));
      // What rounded up to 2 to the 64th overflows without getting the 2 to the 63rd back.
      const float rest = quotient - twoTo63;
      const auto low = static_cast<T>(truncate<std::int64_t>(rest));
      return rest < twoTo63 ? low + (T{1} << 63) : low;
    } else {
      using Between = std::conditional_t<(sizeof(T) == 8 || std::is_same_v<T, std::uint32_t>),
                                         std::int64_t, std::int32_t>;
      return static_cast<T>(truncate<Between>(quotient));
    }
  }
}

/// Whether more than half of `count` elements are true, where the first one counts as an element
/// but never as a true one.
constexpr bool mostAreTrue(std::uint64_t trueBehindFirst, std::uint64_t count) noexcept {
  return static_cast<float>(trueBehindFirst) > static_cast<float>(count) * 0.5F;
}

}  // namespace vtlcmd
