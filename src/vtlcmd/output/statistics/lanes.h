#pragma once

#include <cstddef>
#include <cstdint>

#include "vtlcmd/output/statistics/kernels.h"

namespace vtlcmd::statistics::VTLCMD_KERNELS {

/// Bytes of the widest vectors of the processor that is compiled for.
#if defined(__AVX512BW__)
inline constexpr std::size_t vectorBytes = 64;
#elif defined(__AVX2__)
inline constexpr std::size_t vectorBytes = 32;
#else
inline constexpr std::size_t vectorBytes = 16;
#endif

/// The compilers' own vectors, not loops over arrays: g++ 12 leaves running values that are arrays
/// in memory, and may not turn floating comparisons into minima of several elements at a time.
template <typename T, std::size_t Bytes = vectorBytes>
struct LanesOf {
  using Type [[gnu::vector_size(Bytes)]] = T;
  static constexpr std::size_t count = Bytes / sizeof(T);
};
template <typename T, std::size_t Bytes = vectorBytes>
using Lanes = typename LanesOf<T, Bytes>::Type;

/// From memory of any alignment.
template <typename Vector, typename T>
Vector load(const T* elements) {
  Vector lanes;
  __builtin_memcpy(&lanes, elements, sizeof lanes);
  return lanes;
}

/// Vectors that a step takes, each with running values of its own, so that none waits for another.
inline constexpr std::size_t vectorsAStep = 4;
template <typename T>
inline constexpr std::size_t elementsAStep = vectorsAStep* LanesOf<T>::count;

/// Has the memory get what lies so far ahead of the step from element i, but nothing behind the
/// last step of `count` elements.
template <typename T>
void prefetch(const T* elements, std::uint64_t i, std::uint64_t count) {
  constexpr std::size_t cacheLine = 64 / sizeof(T);
  const std::uint64_t ahead = bytesAhead / sizeof(T);
  const std::uint64_t last = count - elementsAStep<T>;
  const T* step = elements + (i + ahead < last ? i + ahead : last);
#pragma GCC unroll 4
  for (std::size_t n = 0; n < elementsAStep<T>; n += cacheLine) __builtin_prefetch(step + n);
}

}  // namespace vtlcmd::statistics::VTLCMD_KERNELS
