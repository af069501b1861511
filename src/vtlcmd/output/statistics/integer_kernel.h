#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "vtlcmd/output/statistics/kernels.h"
#include "vtlcmd/output/statistics/lanes.h"

namespace vtlcmd::statistics::VTLCMD_KERNELS {

template <typename T>
Totals<T> integerTotals(const T* elements, std::uint64_t count) {
  // Sums of every so many elements wrap to the same as one sum does.
  using Bits = std::make_unsigned_t<T>;
  constexpr std::size_t width = LanesOf<T>::count;

  T minimum = elements[0];
  T maximum = elements[0];
  Bits sum = 0;
  std::uint64_t i = 0;
  if (count >= elementsAStep<T>) {
    Lanes<T> low[vectorsAStep];
    Lanes<T> high[vectorsAStep];
    Lanes<Bits> sums[vectorsAStep];
#pragma GCC unroll 4
    for (std::size_t v = 0; v < vectorsAStep; ++v) {
      low[v] = high[v] = load<Lanes<T>>(elements);
      sums[v] = Lanes<Bits>{};
    }
    for (; count - i >= elementsAStep<T>; i += elementsAStep<T>) {
      prefetch(elements, i, count);
#pragma GCC unroll 4
      for (std::size_t v = 0; v < vectorsAStep; ++v) {
        const auto lanes = load<Lanes<T>>(elements + i + v * width);
        low[v] = lanes < low[v] ? lanes : low[v];
        high[v] = high[v] < lanes ? lanes : high[v];
        sums[v] += (Lanes<Bits>)lanes;
      }
    }
#pragma GCC unroll 4
    for (std::size_t v = 1; v < vectorsAStep; ++v) {
      low[0] = low[v] < low[0] ? low[v] : low[0];
      high[0] = high[0] < high[v] ? high[v] : high[0];
      sums[0] += sums[v];
    }
    for (std::size_t k = 0; k < width; ++k) {
      if (low[0][k] < minimum) minimum = low[0][k];
      if (maximum < high[0][k]) maximum = high[0][k];
      sum = static_cast<Bits>(sum + sums[0][k]);
    }
  }
  for (; i < count; ++i) {
    if (elements[i] < minimum) minimum = elements[i];
    if (maximum < elements[i]) maximum = elements[i];
    sum = static_cast<Bits>(sum + static_cast<Bits>(elements[i]));
  }
  return {minimum, maximum, static_cast<T>(sum)};
}

}  // namespace vtlcmd::statistics::VTLCMD_KERNELS
