#pragma once

#include <cstddef>
#include <cstdint>

#include "vtlcmd/output/statistics/kernels.h"
#include "vtlcmd/output/statistics/lanes.h"

namespace vtlcmd::statistics::VTLCMD_KERNELS {

inline Totals<bool> truthTotals(const bool* elements, std::uint64_t count) {
  // A byte that is neither 0 nor 1 may not be read as a bool.
  using Byte = std::uint8_t;
  const auto* bytes = reinterpret_cast<const Byte*>(elements);
  constexpr std::size_t width = LanesOf<Byte>::count;
  // What a lane can count to.
  constexpr std::uint64_t mostSteps = 255;

  Totals<bool> totals{0};
  std::uint64_t i = 0;
  while (count - i >= elementsAStep<Byte>) {
    const std::uint64_t left = (count - i) / elementsAStep<Byte>;
    const std::uint64_t steps = left < mostSteps ? left : mostSteps;
    Lanes<Byte> trueCounts[vectorsAStep] = {};
    for (std::uint64_t step = 0; step < steps; ++step, i += elementsAStep<Byte>) {
      prefetch(bytes, i, count);
#pragma GCC unroll 4
      for (std::size_t v = 0; v < vectorsAStep; ++v) {
        const auto lanes = load<Lanes<Byte>>(bytes + i + v * width);
        // True is -1 in a lane.
        trueCounts[v] -= (Lanes<Byte>)(lanes != 0);
      }
    }
    for (const Lanes<Byte>& lanes : trueCounts)
      for (std::size_t k = 0; k < width; ++k) totals.trueCount += lanes[k];
  }
  for (; i < count; ++i)
    if (bytes[i] != 0) ++totals.trueCount;
  return totals;
}

}  // namespace vtlcmd::statistics::VTLCMD_KERNELS
