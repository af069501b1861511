#pragma once

#include <cstddef>
#include <cstdint>

#include "vtlcmd/output/statistics/kernels.h"
#include "vtlcmd/output/statistics/lanes.h"

namespace vtlcmd::statistics::VTLCMD_KERNELS {

/// Half of what the widest registers hold does: wider ones only make ends take longer.
inline constexpr std::size_t floatingBytes = vectorBytes < 32 ? vectorBytes : 32;
template <typename Number>
inline constexpr std::size_t floatingLanes = floatingBytes / sizeof(Number);

/// Of the elements seen so far, component by component.
template <typename Number, std::size_t Components>
struct Running {
  Number minimum[Components];
  Number maximum[Components];
  Number sum[Components];
};

/// There must be one. Of equal numbers only zeros have several forms, and the first one counts.
template <std::size_t Stride, typename Number>
Number firstZero(const Number* numbers) {
  while (*numbers != 0) numbers += Stride;
  return *numbers;
}

/// Which of two NaNs an addition gives back the compiler may choose; the first one counts.
template <std::size_t Stride, typename Number>
Number sumUpToNan(Number sum, const Number* numbers) {
  for (; !__builtin_isnan(sum); numbers += Stride) sum += *numbers;
  return sum;
}

/// One element in a register, for one addition an element; what is behind its components is 0.
template <typename Number, std::size_t Components>
struct ElementOf {
  using Type [[gnu::vector_size(4 * sizeof(Number))]] = Number;
};
template <typename Number>
struct ElementOf<Number, 1> {
  using Type = Number;
};

template <std::size_t Components, typename Number>
auto loadElement(const Number* numbers) {
  using Element = typename ElementOf<Number, Components>::Type;
  // As a copy of bytes an element of less than a whole register would go through memory.
  if constexpr (Components == 1) {
    return *numbers;
  } else if constexpr (Components == 2) {
    return Element{numbers[0], numbers[1], 0, 0};
  } else if constexpr (Components == 3) {
    return Element{numbers[0], numbers[1], numbers[2], 0};
  } else {
    return Element{numbers[0], numbers[1], numbers[2], numbers[3]};
  }
}

/// Goes on over `rounds` times as many elements as a vector has lanes. The additions wait for one
/// another, so that the comparisons, several elements at a time, take no time of their own.
template <std::size_t Components, typename Number>
void addBlock(Running<Number, Components>& running, const Number* numbers, std::uint64_t rounds) {
  constexpr std::size_t width = floatingLanes<Number>;
  // Lane k of vector v is for component (v * width + k) % Components.
  Number lowest[Components * width];
  Number highest[Components * width];
  for (std::size_t n = 0; n < Components * width; ++n) {
    lowest[n] = running.minimum[n % Components];
    highest[n] = running.maximum[n % Components];
  }
  using Vector = Lanes<Number, floatingBytes>;
  Vector low[Components];
  Vector high[Components];
#pragma GCC unroll 4
  for (std::size_t v = 0; v < Components; ++v) {
    low[v] = load<Vector>(lowest + v * width);
    high[v] = load<Vector>(highest + v * width);
  }
  auto sum = loadElement<Components>(running.sum);

  const Number* next = numbers;
  for (std::uint64_t round = 0; round < rounds; ++round, next += Components * width) {
#pragma GCC unroll 4
    for (std::size_t v = 0; v < Components; ++v) {
      const auto lanes = load<Vector>(next + v * width);
      low[v] = lanes < low[v] ? lanes : low[v];
      high[v] = high[v] < lanes ? lanes : high[v];
    }
#pragma GCC unroll 16
    for (std::size_t k = 0; k < width; ++k) sum += loadElement<Components>(next + k * Components);
  }

#pragma GCC unroll 4
  for (std::size_t v = 0; v < Components; ++v) {
    __builtin_memcpy(lowest + v * width, &low[v], sizeof low[v]);
    __builtin_memcpy(highest + v * width, &high[v], sizeof high[v]);
  }
  Number sums[Components];
  __builtin_memcpy(sums, &sum, sizeof sums);
  for (std::size_t c = 0; c < Components; ++c) {
    Number minimum = running.minimum[c];
    Number maximum = running.maximum[c];
    for (std::size_t n = c; n < Components * width; n += Components) {
      if (lowest[n] < minimum) minimum = lowest[n];
      if (maximum < highest[n]) maximum = highest[n];
    }
    if (minimum < running.minimum[c])
      running.minimum[c] = minimum == 0 ? firstZero<Components>(numbers + c) : minimum;
    if (running.maximum[c] < maximum)
      running.maximum[c] = maximum == 0 ? firstZero<Components>(numbers + c) : maximum;
    running.sum[c] =
        __builtin_isnan(sums[c]) ? sumUpToNan<Components>(running.sum[c], numbers + c) : sums[c];
  }
}

/// `numbers` are those of `count` elements, one behind the other.
template <typename Number, std::size_t Components>
Running<Number, Components> runThrough(const Number* numbers, std::uint64_t count) {
  constexpr std::size_t width = floatingLanes<Number>;
  // Enough for what is done once a block not to count, few enough to be near in the cache then.
  constexpr std::uint64_t mostRounds = 256;

  Running<Number, Components> running;
  for (std::size_t c = 0; c < Components; ++c)
    running.minimum[c] = running.maximum[c] = running.sum[c] = numbers[c];
  std::uint64_t i = 1;
  while (count - i >= width) {
    const std::uint64_t left = (count - i) / width;
    const std::uint64_t rounds = left < mostRounds ? left : mostRounds;
    addBlock(running, numbers + i * Components, rounds);
    i += rounds * width;
  }
  for (; i < count; ++i) {
    for (std::size_t c = 0; c < Components; ++c) {
      const Number number = numbers[i * Components + c];
      if (number < running.minimum[c]) running.minimum[c] = number;
      if (running.maximum[c] < number) running.maximum[c] = number;
      if (!__builtin_isnan(running.sum[c])) running.sum[c] += number;
    }
  }
  return running;
}

}  // namespace vtlcmd::statistics::VTLCMD_KERNELS
