#include <cmath>

#include "nodes/families.h"
#include "nodes/number_conversion.h"
#include "nodes/operand.h"
#include "nodes/vector_components.h"

namespace vtlcmd::runner::node_families {
namespace {

template <typename T>
concept Vector3 = Composite<T> && Registered<T> && T::componentCount == 3;

template <Composite T>
auto magnitudeOf(const T& vector) {
  double length = 0;
  for (const auto component : vector.components)
    length = std::hypot(length, static_cast<double>(component));
  return convertNumber<typename T::ComponentType>(length).number;
}

template <Composite T>
auto dotProduct(const T& a, const T& b) {
  double sum = 0;
  for (std::size_t i = 0; i < T::componentCount; ++i)
    sum += static_cast<double>(a.components[i]) * static_cast<double>(b.components[i]);
  return convertNumber<typename T::ComponentType>(sum).number;
}

template <Vector3 T>
T crossProduct(const T& a, const T& b) {
  const auto minor = [&](std::size_t i, std::size_t k) {
    const double difference =
        static_cast<double>(a.components[i]) * static_cast<double>(b.components[k]) -
        static_cast<double>(a.components[k]) * static_cast<double>(b.components[i]);
    return convertNumber<typename T::ComponentType>(difference).number;
  };
  return T{{minor(1, 2), minor(2, 0), minor(0, 1)}};
}

ValueType commonVectorType(const NodeTypes& types) {
  if (types[0].element != types[1].element) {
    throw std::invalid_argument(nameOf(types[0]) + " and " + nameOf(types[1]) +
                                " don't go together; convert one");
  }
  return {types[0].element, std::max(types[0].depth, types[1].depth)};
}

ValueType dotType(const NodeTypes& types) {
  const ValueType common = commonVectorType(types);
  return {std::string(componentOf(common.element)), common.depth};
}

ValueType crossType(const NodeTypes& types) {
  bool hasProduct = false;
  withTypeNamed(registeredTypes, types[0].element, [&]<typename T>() { hasProduct = Vector3<T>; });
  if (!hasProduct) {
    throw std::invalid_argument(nameOf(types[0]) +
                                " has no cross product; vectors of three components have");
  }
  return commonVectorType(types);
}

Orvel::Value magnitude(const NodeCall& call) {
  return evaluateAs(call.types[0].element, [&]<typename T>() -> Orvel::Value {
    if constexpr (Composite<T>) {
      const Operand<T> vectors(call[0], call.types[0].depth > 0);
      return singleOrArray<typename T::ComponentType>(
          vectors.size(), [&](std::uint64_t i) { return magnitudeOf(vectors[i]); });
    } else {
      throw NodeError(call.types[0].element + " is no vector");
    }
  });
}

/// `function(a, b)` of two vectors, by element.
template <typename T, typename Result, typename Function>
Orvel::Value productOf(const NodeCall& call, Function function) {
  const Operand<T> a(call[0], call.types[0].depth > 0);
  const Operand<T> b(call[1], call.types[1].depth > 0);
  return singleOrArray<Result>(sharedSize({{a.size(), b.size()}}),
                               [&](std::uint64_t i) { return function(a[i], b[i]); });
}

Orvel::Value dot(const NodeCall& call) {
  return evaluateAs(call.types[0].element, [&]<typename T>() -> Orvel::Value {
    if constexpr (Composite<T>) {
      return productOf<T, typename T::ComponentType>(call, dotProduct<T>);
    } else {
      throw NodeError(call.types[0].element + " is no vector");
    }
  });
}

Orvel::Value cross(const NodeCall& call) {
  return evaluateAs(call.types[0].element, [&]<typename T>() -> Orvel::Value {
    if constexpr (Vector3<T>) {
      return productOf<T, T>(call, crossProduct<T>);
    } else {
      throw NodeError(call.types[0].element + " has no cross product");
    }
  });
}

const std::vector<Parameter> twoVectors{{"a", &type_classes::vectors},
                                        {"b", &type_classes::vectors}};

const NodeOperation vectorProductOperations[] = {
    {"magnitude",
     {{"vector", &type_classes::vectors}},
     NodeSetting::none,
     componentType,
     magnitude,
     "The length of a vector, or of each vector in an array, computed as double."},
    {"dot", twoVectors, NodeSetting::none, dotType, dot,
     "The dot product of two vectors, by element, computed as double."},
    {"cross", twoVectors, NodeSetting::none, crossType, cross,
     "The cross product of two vectors of three components, by element, computed as double."},
};

}  // namespace

std::span<const NodeOperation> vectorProducts() { return vectorProductOperations; }

}  // namespace vtlcmd::runner::node_families
