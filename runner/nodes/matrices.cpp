#include <algorithm>

#include "nodes/families.h"
#include "nodes/matrix_types.h"
#include "nodes/number_conversion.h"
#include "nodes/operand.h"

namespace vtlcmd::runner::node_families {
namespace {

ValueType matrixType(const NodeTypes& types) {
  const ValueType& declared = *types.declared;
  const bool isMatrix =
      declared.depth == 0 && withMatrix(declared.element, [&]<typename T>() {
        const std::string_view component = valueType<typename MatrixShape<T>::Component>().name;
        for (const ValueType& type : types.arguments[0]) {
          if (type.element != component) {
            throw std::invalid_argument("a component of " + declared.element + " is of type " +
                                        std::string(component) + ", not " + type.element);
          }
        }
      });
  if (!isMatrix)
    throw std::invalid_argument(nameOf(declared) + " is no matrix of floats or doubles");
  return declared;
}

Orvel::Value makeMatrix(const NodeCall& call) {
  std::optional<Orvel::Value> result;
  withMatrix(call.resultType.element, [&]<typename T>() {
    using Component = typename MatrixShape<T>::Component;
    std::vector<Component> components;
    for (std::size_t source = 0; source < call.arguments[0].size(); ++source) {
      const Operand<Component> numbers(call.arguments[0][source],
                                       call.types.arguments[0][source].depth > 0);
      for (std::uint64_t i = 0; i < numbers.size().value_or(1); ++i)
        components.push_back(numbers[i]);
    }
    T matrix;
    if (components.size() != matrix.components.size()) {
      throw NodeError(call.resultType.element + " has " + std::to_string(matrix.components.size()) +
                      " components, not " + std::to_string(components.size()));
    }
    std::copy(components.begin(), components.end(), matrix.components.begin());
    result = Orvel::makeValue(matrix);
  });
  return *std::move(result);
}

/// How a matrix takes a vector: as it is, or with a 1 behind its components, where a square matrix
/// then gives one more component, which the others are divided by.
template <FloatingMatrix M, typename V>
constexpr bool transforms() {
  using Shape = MatrixShape<M>;
  if constexpr (Composite<V>) {
    constexpr std::size_t count = V::componentCount;
    return std::is_same_v<typename V::ComponentType, typename Shape::Component> &&
           ((Shape::rows == count && Shape::columns == count) ||
            (Shape::columns == count + 1 &&
             (Shape::rows == count || Shape::rows == Shape::columns)));
  } else {
    return false;
  }
}

template <FloatingMatrix M, Composite V>
V transformed(const M& matrix, const V& vector) {
  using Shape = MatrixShape<M>;
  constexpr std::size_t count = V::componentCount;
  const auto rowTimesVector = [&](std::size_t row) {
    const auto* const components = matrix.components.data() + row * Shape::columns;
    double sum = 0;
    for (std::size_t k = 0; k < Shape::columns; ++k)
      sum += static_cast<double>(components[k]) *
             (k < count ? static_cast<double>(vector.components[k]) : 1.0);
    return sum;
  };
  const double divisor = Shape::rows > count ? rowTimesVector(Shape::rows - 1) : 1.0;
  V result;
  for (std::size_t i = 0; i < count; ++i) {
    result.components[i] =
        convertNumber<typename V::ComponentType>(rowTimesVector(i) / divisor).number;
  }
  return result;
}

template <FloatingMatrix M, Composite V>
Orvel::Value transformPoints(const NodeCall& call) {
  const M& matrix = Orvel::valueAs<M>(call[0]);
  const Operand<V> points(call[1], call.types[1].depth > 0);
  return singleOrArray<V>(points.size(),
                          [&](std::uint64_t i) { return transformed(matrix, points[i]); });
}

using Transformation = Orvel::Value (*)(const NodeCall&);

/// What transforms points of the second type by matrices of the first; null where nothing does.
Transformation transformationOf(const NodeTypes& types) {
  Transformation transformation = nullptr;
  withMatrix(types[0].element, [&]<typename M>() {
    withTypeNamed(registeredTypes, types[1].element, [&]<typename V>() {
      if constexpr (transforms<M, V>()) transformation = transformPoints<M, V>;
    });
  });
  return transformation;
}

ValueType transformedType(const NodeTypes& types) {
  if (transformationOf(types) != nullptr) return types[1];
  throw std::invalid_argument(nameOf(types[0]) + " doesn't transform " + nameOf(types[1]));
}

Orvel::Value transform(const NodeCall& call) { return transformationOf(call.types)(call); }

const NodeOperation matrixOperations[] = {
    {"matrix",
     {{"components", &type_classes::floating, true}},
     NodeSetting::type,
     matrixType,
     makeMatrix,
     "A matrix of its components row by row; an array gives as many as it has."},
    {"transform",
     {{"matrix", &type_classes::matrix}, {"point", &type_classes::vectors}},
     NodeSetting::none,
     transformedType,
     transform,
     "The matrix times the point as a column, or each point in an array. A matrix with a column "
     "more takes the point with a 1 below; if it is square the result is divided by its last "
     "component."},
};

}  // namespace

std::span<const NodeOperation> matrices() { return matrixOperations; }

}  // namespace vtlcmd::runner::node_families
