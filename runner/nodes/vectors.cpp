#include <algorithm>

#include "nodes/families.h"
#include "nodes/integer_argument.h"
#include "nodes/operand.h"
#include "nodes/vector_components.h"

namespace vtlcmd::runner::node_families {
namespace {

/// Calls `function.operator()<T>()` when the name is that of a vector type.
template <typename Function>
bool withVector(const std::string& element, Function&& function) {
  bool isVector = false;
  withTypeNamed(registeredTypes, element, [&]<typename T>() {
    if constexpr (Composite<T>) {
      function.template operator()<T>();
      isVector = true;
    }
  });
  return isVector;
}

ValueType vectorType(const NodeTypes& types) {
  const ValueType& declared = *types.declared;
  std::uint32_t depth = 0;
  const bool isVector = withVector(declared.element, [&]<typename T>() {
    const std::string_view component = valueType<typename T::ComponentType>().name;
    if (types.arguments[0].size() != T::componentCount) {
      throw std::invalid_argument(declared.element + " has " + std::to_string(T::componentCount) +
                                  " components, the list has " +
                                  std::to_string(types.arguments[0].size()));
    }
    for (const ValueType& type : types.arguments[0]) {
      if (type.element != component) {
        throw std::invalid_argument("a component of " + declared.element + " is of type " +
                                    std::string(component) + ", not " + type.element);
      }
      depth = std::max(depth, type.depth);
    }
  });
  if (!isVector) throw std::invalid_argument(nameOf(declared) + " is no vector type");
  ValueType result{declared.element, depth};
  if (result != declared)
    throw std::invalid_argument("the components give " + nameOf(result) + ", not " +
                                nameOf(declared));
  return result;
}

Orvel::Value makeVector(const NodeCall& call) {
  std::optional<Orvel::Value> result;
  withVector(call.resultType.element, [&]<typename T>() {
    std::vector<Operand<typename T::ComponentType>> components;
    std::vector<std::optional<std::uint64_t>> sizes;
    for (std::size_t i = 0; i < T::componentCount; ++i) {
      components.emplace_back(call.arguments[0][i], call.types.arguments[0][i].depth > 0);
      sizes.push_back(components.back().size());
    }
    result = singleOrArray<T>(sharedSize(sizes), [&](std::uint64_t i) {
      T vector;
      for (std::size_t k = 0; k < T::componentCount; ++k) vector.components[k] = components[k][i];
      return vector;
    });
  });
  return *std::move(result);
}

Orvel::Value component(const NodeCall& call) {
  const std::uint64_t index = countArgument(call, 1, "the index");
  std::optional<Orvel::Value> result;
  withVector(call.types[0].element, [&]<typename T>() {
    if (index >= T::componentCount) {
      throw NodeError("the index " + std::to_string(index) + " is out of range, a " +
                      call.types[0].element + " has " + std::to_string(T::componentCount) +
                      " components");
    }
    const Operand<T> vectors(call[0], call.types[0].depth > 0);
    result = singleOrArray<typename T::ComponentType>(
        vectors.size(), [&](std::uint64_t i) { return vectors[i].components[index]; });
  });
  return *std::move(result);
}

const NodeOperation vectorOperations[] = {
    {"vector",
     {{"components", &type_classes::floating, true}},
     NodeSetting::type,
     vectorType,
     makeVector,
     "A vector of its components, or an array of vectors of arrays of components."},
    {"component",
     {{"vector", &type_classes::vectors}, {"index", &type_classes::integer}},
     NodeSetting::none,
     componentType,
     component,
     "The component of a vector, or of each vector in an array, counted from 0."},
};

}  // namespace

std::span<const NodeOperation> vectors() { return vectorOperations; }

}  // namespace vtlcmd::runner::node_families
