#include "nodes/families.h"
#include "nodes/number_conversion.h"
#include "nodes/operand.h"
#include "nodes/total_order.h"

namespace vtlcmd::runner::node_families {
namespace {

// Each takes one number or more, `numberAt(i)` for i below `size`.

constexpr auto least = [](std::uint64_t size, auto numberAt) {
  auto result = numberAt(0);
  for (std::uint64_t i = 1; i < size; ++i) {
    if (comesBefore(numberAt(i), result)) result = numberAt(i);
  }
  return result;
};

constexpr auto greatest = [](std::uint64_t size, auto numberAt) {
  auto result = numberAt(0);
  for (std::uint64_t i = 1; i < size; ++i) {
    if (comesBefore(result, numberAt(i))) result = numberAt(i);
  }
  return result;
};

constexpr auto total = [](std::uint64_t size, auto numberAt) {
  using T = decltype(numberAt(0));
  if constexpr (std::is_integral_v<T>) {
    std::make_unsigned_t<T> sum = 0;
    for (std::uint64_t i = 0; i < size; ++i) sum += static_cast<decltype(sum)>(numberAt(i));
    return static_cast<T>(sum);
  } else {
    double sum = numberAt(0);
    for (std::uint64_t i = 1; i < size; ++i) sum += numberAt(i);
    return convertNumber<T>(sum).number;
  }
};

template <const auto& Reduction>
Orvel::Value reduce(const NodeCall& call) {
  return evaluateAs(call.resultType.element, [&]<typename T>() -> Orvel::Value {
    if constexpr (Number<T> || Composite<T>) {
      const Orvel::Array<T>& array = arrayIn<T>(call[0]);
      if (array.size == 0) throw NodeError("the array has no elements");
      if constexpr (Composite<T>) {
        T result;
        for (std::size_t k = 0; k < result.components.size(); ++k) {
          result.components[k] =
              Reduction(array.size, [&](std::uint64_t i) { return array[i].components[k]; });
        }
        return Orvel::makeValue(result);
      } else {
        return Orvel::makeValue<T>(
            Reduction(array.size, [&](std::uint64_t i) { return array[i]; }));
      }
    } else {
      throw NodeError("no arithmetic on " + call.resultType.element);
    }
  });
}

template <const auto& Reduction>
NodeOperation reduction(std::string_view name, std::string_view help) {
  return {name,
          {{"array", &type_classes::arithmeticArray}},
          NodeSetting::none,
          [](const NodeTypes& types) { return elementOf(types[0]); },
          reduce<Reduction>,
          help};
}

const NodeOperation reductionOperations[] = {
    reduction<least>("minimum",
                     "The least element, of vectors by component; a NaN counts as greater than all "
                     "numbers, -0 as less than 0."),
    reduction<greatest>("maximum",
                        "The greatest element, of vectors by component; a NaN counts as greater "
                        "than all numbers, -0 as less than 0."),
    reduction<total>("sum",
                     "The sum of one element or more, of vectors by component; integers wrap "
                     "around, floats are added in order as doubles."),
};

}  // namespace

std::span<const NodeOperation> reductions() { return reductionOperations; }

}  // namespace vtlcmd::runner::node_families
