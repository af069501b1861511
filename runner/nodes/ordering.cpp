#include <algorithm>

#include "nodes/families.h"
#include "nodes/number_text.h"
#include "nodes/operand.h"
#include "nodes/total_order.h"
#include "nodes/vector_components.h"

namespace vtlcmd::runner::node_families {
namespace {

Orvel::Value sort(const NodeCall& call) {
  return evaluateAs(call.resultType.element, [&]<typename T>() -> Orvel::Value {
    if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, Orvel::String>) {
      const Orvel::Array<T>& array = arrayIn<T>(call[0]);
      Orvel::Array<T> sorted =
          generateArray<T>(array.size, [&](std::uint64_t i) { return array[i]; });
      std::stable_sort(sorted.data, sorted.data + sorted.size, comesBefore);
      return arrayValue(std::move(sorted));
    } else {
      throw NodeError("no order of " + call.resultType.element);
    }
  });
}

/// A bound is of the value's type or a number that holds for all components.
ValueType clampedType(const NodeTypes& types) {
  ValueType result = types[0];
  for (std::size_t bound = 1; bound <= 2; ++bound) {
    if (types[bound].element != result.element &&
        types[bound].element != componentOf(result.element)) {
      throw std::invalid_argument(nameOf(types[bound]) + " is no bound for " + nameOf(types[0]) +
                                  "; convert one");
    }
    result.depth = std::max(result.depth, types[bound].depth);
  }
  return result;
}

template <typename T>
T clampNumber(T value, T low, T high) {
  if (!(low <= high)) {
    throw NodeError("the bounds " + numberText(low) + " and " + numberText(high) +
                    " aren't in order");
  }
  if (value < low) return low;
  return high < value ? high : value;
}

template <typename T>
T clampValue(const T& value, const T& low, const T& high) {
  if constexpr (Composite<T>) {
    T result;
    for (std::size_t i = 0; i < result.components.size(); ++i) {
      result.components[i] =
          clampNumber(value.components[i], low.components[i], high.components[i]);
    }
    return result;
  } else {
    return clampNumber(value, low, high);
  }
}

Orvel::Value clamp(const NodeCall& call) {
  return evaluateAs(call.resultType.element, [&]<typename T>() -> Orvel::Value {
    if constexpr (Number<T> || Composite<T>) {
      const Orvel::Value lowest = broadcast<T>(call[1], call.types[1]);
      const Orvel::Value highest = broadcast<T>(call[2], call.types[2]);
      const Operand<T> value(call[0], call.types[0].depth > 0);
      const Operand<T> low(lowest, call.types[1].depth > 0);
      const Operand<T> high(highest, call.types[2].depth > 0);
      return singleOrArray<T>(
          sharedSize({{value.size(), low.size(), high.size()}}),
          [&](std::uint64_t i) { return clampValue(value[i], low[i], high[i]); });
    } else {
      throw NodeError("no order of " + call.resultType.element);
    }
  });
}

using type_classes::arithmetic;

const NodeOperation orderingOperations[] = {
    {"sort",
     {{"array", &type_classes::comparableArray}},
     NodeSetting::none,
     [](const NodeTypes& types) { return types[0]; },
     sort,
     "The elements from the least to the greatest; -0 before 0, NaNs last, strings by their "
     "bytes."},
    {"clamp",
     {{"value", &arithmetic}, {"low", &arithmetic}, {"high", &arithmetic}},
     NodeSetting::none,
     clampedType,
     clamp,
     "The value, or the bound that it is beyond, by element and component; a NaN stays."},
};

}  // namespace

std::span<const NodeOperation> ordering() { return orderingOperations; }

}  // namespace vtlcmd::runner::node_families
