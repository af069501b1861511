#include "element_generator.h"

#include <array>
#include <bit>
#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace vtlcmd::oracle {
namespace {

template <typename T>
using BitsOf = std::conditional_t<std::same_as<T, float>, std::uint32_t, std::uint64_t>;

template <typename T>
T anyBits(RandomSource& random) {
  if constexpr (std::integral<T>) {
    return static_cast<T>(random.bits());
  } else {
    return std::bit_cast<T>(static_cast<BitsOf<T>>(random.bits()));
  }
}

template <typename T>
T small(RandomSource& random) {
  if constexpr (std::integral<T>) {
    return static_cast<T>(random.below(17) - 8);
  } else {
    return static_cast<T>(random.between(-40, 40)) / 4;
  }
}

template <typename T>
T atLimit(RandomSource& random) {
  using Limits = std::numeric_limits<T>;
  if constexpr (std::integral<T>) {
    const T limit = random.pick(std::array{Limits::min(), Limits::max(), T{0}});
    return static_cast<T>(static_cast<std::uint64_t>(limit) + random.below(3) - 1);
  } else {
    const T magnitude = random.pick(std::array{T{0}, T{1}, Limits::infinity(), Limits::quiet_NaN(),
                                               Limits::signaling_NaN(), Limits::denorm_min(),
                                               Limits::min(), Limits::max(), Limits::max() / 2});
    return random.oneIn(2) ? magnitude : -magnitude;
  }
}

/// Of one sign and about the same size within an array, so that sums grow and lose digits.
template <typename T>
T ofLikeSize(RandomSource& random, T pattern) {
  if constexpr (std::integral<T>) {
    return static_cast<T>(pattern ^ static_cast<T>(random.below(256)));
  } else {
    constexpr int fractionBits = std::numeric_limits<T>::digits - 1;
    const auto noise = random.bits() % (BitsOf<T>{1} << (fractionBits + 2));
    return std::bit_cast<T>(std::bit_cast<BitsOf<T>>(pattern) ^ static_cast<BitsOf<T>>(noise));
  }
}

}  // namespace

std::size_t randomCount(RandomSource& random) {
  if (random.oneIn(2000)) return random.below(5000);
  return random.below(random.oneIn(8) ? 200 : 12);
}

template <typename T>
std::vector<T> randomElements(RandomSource& random, std::size_t count) {
  const std::uint64_t character = random.below(4);
  const T pattern = anyBits<T>(random);
  std::vector<T> elements;
  elements.reserve(count);
  while (elements.size() < count) {
    elements.push_back(character == 0   ? anyBits<T>(random)
                       : character == 1 ? small<T>(random)
                       : character == 2 ? atLimit<T>(random)
                                        : ofLikeSize<T>(random, pattern));
  }
  return elements;
}

template std::vector<std::int32_t> randomElements(RandomSource&, std::size_t);
template std::vector<std::uint32_t> randomElements(RandomSource&, std::size_t);
template std::vector<std::int64_t> randomElements(RandomSource&, std::size_t);
template std::vector<std::uint64_t> randomElements(RandomSource&, std::size_t);
template std::vector<std::int16_t> randomElements(RandomSource&, std::size_t);
template std::vector<std::uint16_t> randomElements(RandomSource&, std::size_t);
template std::vector<std::uint8_t> randomElements(RandomSource&, std::size_t);
template std::vector<float> randomElements(RandomSource&, std::size_t);
template std::vector<double> randomElements(RandomSource&, std::size_t);

}  // namespace vtlcmd::oracle
