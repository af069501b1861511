#pragma once

#include <cstdint>
#include <span>
#include <tuple>

#include "vtlcmd/host/imports/vantrel_math.h"

/// The passes over an array's elements, by processor: one source, compiled once for each row of the
/// table. All of them give the same bits for the same elements.

namespace vtlcmd::statistics {

/// Of all elements from the first one on. A sum that is a NaN stays the NaN that it first became.
template <typename T>
struct Totals {
  T minimum;
  T maximum;
  T sum;
};

/// How many of the bytes aren't 0; the smallest one is 0 if these aren't all, the largest if none
/// is.
template <>
struct Totals<bool> {
  std::uint64_t trueCount;
};

/// `count` is at least 1. Reads the elements and nothing behind them.
template <typename T>
using Kernel = Totals<T> (*)(const T* elements, std::uint64_t count);

/// One for each type.
using KernelSet =
    std::tuple<Kernel<bool>, Kernel<float>, Kernel<double>, Kernel<std::int16_t>,
               Kernel<std::uint16_t>, Kernel<std::int32_t>, Kernel<std::uint32_t>,
               Kernel<std::int64_t>, Kernel<std::uint64_t>, Kernel<Vantrel::Math::float2>,
               Kernel<Vantrel::Math::float3>, Kernel<Vantrel::Math::float4>>;

/// The sets of the kinds of processors, each of which runs the rows before its own too.
struct KernelRow {
  const char* name;
  const KernelSet* kernels;
};

/// Those that this processor runs, at least one, the fastest last.
std::span<const KernelRow> runnableKernels() noexcept;

/// The fastest ones. Set while the library loads and constant from then on.
extern const KernelSet* const chosenKernels;

}  // namespace vtlcmd::statistics
