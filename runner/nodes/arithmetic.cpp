#include <cmath>
#include <functional>
#include <vector>

#include "nodes/families.h"
#include "nodes/operand.h"
#include "nodes/vector_components.h"

namespace vtlcmd::runner::node_families {
namespace {

/// Integers go round: the lowest bits of the exact result are kept, as two's complement.
template <typename T, typename Function>
T wrapping(T a, T b, Function function) {
  if constexpr (std::is_integral_v<T>) {
    using Bits = std::make_unsigned_t<T>;
    return static_cast<T>(function(static_cast<Bits>(a), static_cast<Bits>(b)));
  } else {
    return function(a, b);
  }
}

template <typename Function>
struct Wrapping {
  template <typename T>
  T operator()(T a, T b) const {
    return wrapping(a, b, Function());
  }
};

struct Quotient {
  template <typename T>
  T operator()(T a, T b) const {
    if constexpr (std::is_integral_v<T>) {
      if (b == 0) throw NodeError("an integer can't be divided by zero");
      // The one quotient that its type can't hold is that of the lowest number by -1.
      if constexpr (std::is_signed_v<T>) {
        if (b == -1) return wrapping(T{0}, a, std::minus<>());
      }
      return static_cast<T>(a / b);
    } else {
      return a / b;
    }
  }
};

template <typename Function, typename T>
T combine(const T& a, const T& b) {
  if constexpr (Composite<T>) {
    T result;
    for (std::size_t i = 0; i < result.components.size(); ++i)
      result.components[i] = Function()(a.components[i], b.components[i]);
    return result;
  } else {
    return Function()(a, b);
  }
}

/// A number joins a vector of such numbers as the vector of that many of it.
ValueType resultOfTwo(const NodeTypes& types) {
  const ValueType& a = types[0];
  const ValueType& b = types[1];
  const std::uint32_t depth = std::max(a.depth, b.depth);
  if (a.element == b.element || a.element == componentOf(b.element)) return {b.element, depth};
  if (b.element == componentOf(a.element)) return {a.element, depth};
  throw std::invalid_argument(nameOf(a) + " and " + nameOf(b) + " don't go together; convert one");
}

template <typename Function>
Orvel::Value evaluateTwo(const NodeCall& call) {
  return evaluateAs(call.resultType.element, [&]<typename T>() -> Orvel::Value {
    if constexpr (Number<T> || Composite<T>) {
      const Orvel::Value first = broadcast<T>(call[0], call.types[0]);
      const Orvel::Value second = broadcast<T>(call[1], call.types[1]);
      const Operand<T> a(first, call.types[0].depth > 0);
      const Operand<T> b(second, call.types[1].depth > 0);
      return singleOrArray<T>(sharedSize({{a.size(), b.size()}}),
                              [&](std::uint64_t i) { return combine<Function>(a[i], b[i]); });
    } else {
      throw NodeError("no arithmetic on " + call.resultType.element);
    }
  });
}

struct Sine {
  auto operator()(auto x) const { return std::sin(x); }
};
struct Cosine {
  auto operator()(auto x) const { return std::cos(x); }
};

ValueType sameAsArgument(const NodeTypes& types) { return types[0]; }

template <typename Function>
Orvel::Value evaluateOne(const NodeCall& call) {
  return evaluateAs(call.resultType.element, [&]<typename T>() -> Orvel::Value {
    if constexpr (std::is_floating_point_v<T>) {
      const Operand<T> x(call[0], call.types[0].depth > 0);
      return singleOrArray<T>(x.size(), [&](std::uint64_t i) { return Function()(x[i]); });
    } else {
      throw NodeError("no function of " + call.resultType.element);
    }
  });
}

const std::vector<Parameter> twoOperands{{"a", &type_classes::arithmetic},
                                         {"b", &type_classes::arithmetic}};
const std::vector<Parameter> one{{"x", &type_classes::floating}};

const NodeOperation arithmeticOperations[] = {
    {"add", twoOperands, NodeSetting::none, resultOfTwo, evaluateTwo<Wrapping<std::plus<>>>,
     "a + b, by element and component; integers wrap around."},
    {"subtract", twoOperands, NodeSetting::none, resultOfTwo, evaluateTwo<Wrapping<std::minus<>>>,
     "a - b, by element and component; integers wrap around."},
    {"multiply", twoOperands, NodeSetting::none, resultOfTwo,
     evaluateTwo<Wrapping<std::multiplies<>>>,
     "a * b, by element and component; integers wrap around."},
    {"divide", twoOperands, NodeSetting::none, resultOfTwo, evaluateTwo<Quotient>,
     "a / b, by element and component; integers are cut towards zero."},
    {"sine", one, NodeSetting::none, sameAsArgument, evaluateOne<Sine>, "The sine of x radians."},
    {"cosine", one, NodeSetting::none, sameAsArgument, evaluateOne<Cosine>,
     "The cosine of x radians."},
};

}  // namespace

std::span<const NodeOperation> arithmetic() { return arithmeticOperations; }

}  // namespace vtlcmd::runner::node_families
