#pragma once

#include <cstdint>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>

#include "vtlcmd/host/value_types.h"

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

/// One for each type of the rows whose arrays are summarised.
template <typename... Rows>
auto kernelsOf(const std::tuple<Rows...>&) -> decltype(std::tuple_cat(
    std::declval<std::conditional_t<Summarised<typename Rows::Type>,
                                    std::tuple<Kernel<typename Rows::Type>>, std::tuple<>>>()...));

using KernelSet = decltype(kernelsOf(std::tuple_cat(registeredTypes, reportOnlyTypes)));

/// The sets of the kinds of processors, each of which runs the rows before its own too.
struct KernelRow {
  const char* name;
  const KernelSet* kernels;
};

/// Those that this processor runs, at least one, the fastest last.
std::span<const KernelRow> runnableKernels() noexcept;

/// The fastest ones. Set while the library loads and constant from then on.
extern const KernelSet* const chosenKernels;

/// How many bytes ahead of them the kernels have the memory get what they will read. Set like
/// chosenKernels.
extern const std::uint64_t bytesAhead;

}  // namespace vtlcmd::statistics
