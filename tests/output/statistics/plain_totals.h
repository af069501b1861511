#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <ostream>
#include <span>
#include <type_traits>
#include <vector>

#include "vtlcmd/host/imports/vantrel_math.h"
#include "vtlcmd/output/statistics/kernels.h"

namespace vtlcmd::testing {

/// How many numbers an element has, and what they are; a bool's is its byte.
template <typename T>
struct Parts {
  using Number = std::conditional_t<std::is_same_v<T, bool>, std::uint8_t, T>;
  static constexpr std::size_t count = 1;
};
template <typename Component, std::size_t Count>
struct Parts<Vantrel::Math::Vector<Component, Count>> {
  using Number = Component;
  static constexpr std::size_t count = Count;
};
template <typename T>
using Number = typename Parts<T>::Number;

template <typename T>
Number<T> sumOf(Number<T> sum, Number<T> number) {
  if constexpr (std::is_floating_point_v<Number<T>>) {
    return sum == sum ? sum + number : sum;
  } else {
    using Bits = std::make_unsigned_t<Number<T>>;
    return static_cast<Number<T>>(
        static_cast<Bits>(static_cast<Bits>(sum) + static_cast<Bits>(number)));
  }
}

/// The totals of whole elements by the rule itself, number after number: what all kernels must
/// give.
template <typename T>
statistics::Totals<T> plainTotals(std::span<const Number<T>> numbers) {
  statistics::Totals<T> totals{};
  if constexpr (std::is_same_v<T, bool>) {
    for (const std::uint8_t byte : numbers) totals.trueCount += byte != 0 ? 1 : 0;
  } else {
    constexpr std::size_t parts = Parts<T>::count;
    Number<T> minimum[parts]{};
    Number<T> maximum[parts]{};
    Number<T> sum[parts]{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const std::size_t part = i % parts;
      if (i < parts) {
        minimum[part] = maximum[part] = sum[part] = numbers[i];
        continue;
      }
      if (minimum[part] > numbers[i]) minimum[part] = numbers[i];
      if (numbers[i] > maximum[part]) maximum[part] = numbers[i];
      sum[part] = sumOf<T>(sum[part], numbers[i]);
    }
    std::memcpy(&totals.minimum, minimum, sizeof minimum);
    std::memcpy(&totals.maximum, maximum, sizeof maximum);
    std::memcpy(&totals.sum, sum, sizeof sum);
  }
  return totals;
}

/// In a block of memory that ends with the last one and starts `offset` numbers before the first.
template <typename T>
statistics::Totals<T> kernelTotals(const statistics::KernelSet& kernels,
                                   std::span<const Number<T>> numbers, std::size_t offset = 0) {
  std::vector<Number<T>> block(offset + numbers.size());
  std::memcpy(block.data() + offset, numbers.data(), numbers.size_bytes());
  const auto* elements = reinterpret_cast<const T*>(block.data() + offset);
  return std::get<statistics::Kernel<T>>(kernels)(elements, numbers.size() / Parts<T>::count);
}

template <typename T>
bool sameBits(const statistics::Totals<T>& one, const statistics::Totals<T>& other) {
  return std::memcmp(&one, &other, sizeof one) == 0;
}

}  // namespace vtlcmd::testing
