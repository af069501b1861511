#include <functional>

#include "nodes/families.h"
#include "nodes/operand.h"
#include "nodes/total_order.h"

namespace vtlcmd::runner::node_families {
namespace {

ValueType truth(const NodeTypes& types) {
  if (types[0].element != types[1].element) {
    throw std::invalid_argument(nameOf(types[0]) + " and " + nameOf(types[1]) +
                                " don't compare; convert one");
  }
  return {valueType<bool>().name, std::max(types[0].depth, types[1].depth)};
}

template <typename Relation, typename T>
bool holds(const T& a, const T& b) {
  if constexpr (std::is_same_v<T, Orvel::String>) {
    return Relation()(bytesOf(a), bytesOf(b));
  } else {
    return Relation()(a, b);
  }
}

template <typename Relation>
Orvel::Value compare(const NodeCall& call) {
  return evaluateAs(call.types[0].element, [&]<typename T>() -> Orvel::Value {
    if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, Orvel::String>) {
      const Operand<T> a(call[0], call.types[0].depth > 0);
      const Operand<T> b(call[1], call.types[1].depth > 0);
      return singleOrArray<bool>(sharedSize({{a.size(), b.size()}}),
                                 [&](std::uint64_t i) { return holds<Relation>(a[i], b[i]); });
    } else {
      throw NodeError("no comparison of " + call.types[0].element);
    }
  });
}

template <typename Relation>
NodeOperation comparison(std::string_view name, std::string_view help) {
  return {name,
          {{"a", &type_classes::comparable}, {"b", &type_classes::comparable}},
          NodeSetting::none,
          truth,
          compare<Relation>,
          help};
}

const NodeOperation comparisonOperations[] = {
    comparison<std::equal_to<>>("equal", "Whether a = b, by element; a NaN equals nothing."),
    comparison<std::not_equal_to<>>(
        "not_equal", "Whether a and b differ, by element; a NaN differs from everything."),
    comparison<std::less<>>("less",
                            "Whether a < b, by element; strings by their bytes, never with a NaN."),
    comparison<std::less_equal<>>(
        "less_or_equal", "Whether a <= b, by element; strings by their bytes, never with a NaN."),
    comparison<std::greater<>>(
        "greater", "Whether a > b, by element; strings by their bytes, never with a NaN."),
    comparison<std::greater_equal<>>(
        "greater_or_equal",
        "Whether a >= b, by element; strings by their bytes, never with a NaN."),
};

}  // namespace

std::span<const NodeOperation> comparisons() { return comparisonOperations; }

}  // namespace vtlcmd::runner::node_families
