#include "diff/tolerance.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace vtlcmd::runner {
namespace {

bool areSameBits(double a, double b) { return a == b && std::signbit(a) == std::signbit(b); }

/// The distance between integers of 64 bits, which doubles can't tell apart.
double integerDistance(const Json& a, const Json& b) {
  const bool aIsNegative = !a.is_number_unsigned() && a.get<std::int64_t>() < 0;
  const bool bIsNegative = !b.is_number_unsigned() && b.get<std::int64_t>() < 0;
  const auto first = a.get<std::uint64_t>();
  const auto second = b.get<std::uint64_t>();
  if (aIsNegative == bIsNegative)
    return static_cast<double>(first > second ? first - second : second - first);
  return std::abs(a.get<double>() - b.get<double>());
}

}  // namespace

bool areEqual(const Json& a, const Json& b, const Tolerance& tolerance) {
  if (!a.is_number() || !b.is_number()) return a == b;
  const bool areIntegers = a.is_number_integer() && b.is_number_integer();
  const auto first = a.get<double>();
  const auto second = b.get<double>();
  if (tolerance.isExact())
    return areIntegers ? integerDistance(a, b) == 0 : areSameBits(first, second);
  // Of numbers that are far apart the distance may be too large for a double; it is then infinite.
  const double distance = areIntegers ? integerDistance(a, b) : std::abs(first - second);
  const double size = std::max(std::abs(first), std::abs(second));
  return distance <= std::max(tolerance.absolute, tolerance.relative * size);
}

}  // namespace vtlcmd::runner
