#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "nodes/node_operation.h"
#include "values/library_array.h"
#include "values/type_dispatch.h"

namespace vtlcmd::runner {

/// A single T or an array of T, read alike: a single one is every element of itself.
template <typename T>
class Operand {
 public:
  Operand(const Orvel::Value& value, bool isArray)
      : data_(isArray ? arrayIn<T>(value).data : &Orvel::valueAs<T>(value)),
        size_(isArray ? std::optional(arrayIn<T>(value).size) : std::nullopt) {}

  const T& operator[](std::uint64_t i) const { return data_[size_ ? i : 0]; }
  /// Of an array.
  const std::optional<std::uint64_t>& size() const { return size_; }

 private:
  const T* data_;
  std::optional<std::uint64_t> size_;
};

/// The length that the arrays among some operands share; nothing when none is an array. Throws
/// NodeError when lengths differ.
inline std::optional<std::uint64_t> sharedSize(
    std::span<const std::optional<std::uint64_t>> sizes) {
  std::optional<std::uint64_t> shared;
  for (const std::optional<std::uint64_t>& size : sizes) {
    if (!size) continue;
    if (shared && *shared != *size) {
      throw NodeError("the arrays differ in length: " + std::to_string(*shared) + " and " +
                      std::to_string(*size) + " elements");
    }
    shared = size;
  }
  return shared;
}

/// One value without a size, else an array of that size, made by `function(i)`.
template <typename T, typename Function>
Orvel::Value singleOrArray(const std::optional<std::uint64_t>& size, Function&& function) {
  if (!size) return Orvel::makeValue<T>(function(0));
  return arrayValue(generateArray<T>(*size, std::forward<Function>(function)));
}

/// Calls `function.operator()<T>()` with the stored type of a registered name.
template <typename Function>
Orvel::Value evaluateAs(const std::string& element, Function&& function) {
  std::optional<Orvel::Value> result;
  withTypeNamed(registeredTypes, element,
                [&]<typename T>() { result = function.template operator()<T>(); });
  return *std::move(result);
}

}  // namespace vtlcmd::runner
