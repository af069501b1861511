#include "nodes/type_classes.h"

#include <concepts>

#include "nodes/matrix_types.h"
#include "values/type_dispatch.h"

namespace vtlcmd::runner {
namespace {

using Vantrel::File::Project::SceneInfo;
using Vantrel::Simulation::Time;

template <typename Predicate>
bool elementMatches(const ValueType& type, Predicate predicate) {
  bool matches = false;
  withTypeNamed(registeredTypes, type.element,
                [&]<typename T>() { matches = predicate.template operator()<T>(); });
  return matches;
}

constexpr auto isInteger = []<typename T>() { return Number<T> && std::integral<T>; };
constexpr auto isBool = []<typename T>() { return std::is_same_v<T, bool>; };
constexpr auto isString = []<typename T>() { return std::is_same_v<T, Orvel::String>; };
constexpr auto isScalar = []<typename T>() { return std::is_arithmetic_v<T>; };
constexpr auto isComparable = []<typename T>() {
  return std::is_arithmetic_v<T> || std::is_same_v<T, Orvel::String>;
};
constexpr auto isFloating = []<typename T>() { return std::floating_point<T>; };
constexpr auto isVector = []<typename T>() { return Composite<T>; };
constexpr auto isArithmetic = []<typename T>() { return Number<T> || Composite<T>; };
constexpr auto isConvertible = []<typename T>() { return std::is_arithmetic_v<T> || Composite<T>; };

template <const auto& Predicate>
bool isSingle(const ValueType& type) {
  return type.depth == 0 && elementMatches(type, Predicate);
}

template <const auto& Predicate>
bool isSingleOrArray(const ValueType& type) {
  return type.depth <= 1 && elementMatches(type, Predicate);
}

template <const auto& Predicate>
bool isArray(const ValueType& type) {
  return type.depth == 1 && elementMatches(type, Predicate);
}

bool isMatrix(const ValueType& type) {
  return type.depth == 0 && withMatrix(type.element, []<typename>() {});
}

template <typename T>
bool isExactly(const ValueType& type) {
  return type.depth == 0 && type.element == valueType<T>().name;
}

}  // namespace

namespace type_classes {

const TypeClass any{"any type", [](const ValueType&) { return true; }};
const TypeClass anyArray{"an array", [](const ValueType& type) { return type.depth > 0; }};
const TypeClass integer{"an integer", isSingle<isInteger>};
const TypeClass scalars{"a number, a bool or an array of them", isSingleOrArray<isScalar>};
const TypeClass comparable{"a number, a bool, a string or an array of them",
                           isSingleOrArray<isComparable>};
const TypeClass comparableArray{"an array of numbers, bools or strings", isArray<isComparable>};
const TypeClass conditions{"a bool or an array of bools", isSingleOrArray<isBool>};
const TypeClass conditionArray{"an array of bools", isArray<isBool>};
const TypeClass arithmetic{"a number, a vector or an array of them", isSingleOrArray<isArithmetic>};
const TypeClass arithmeticArray{"an array of numbers or vectors", isArray<isArithmetic>};
const TypeClass convertible{"a bool, a number, a vector or an array of them",
                            isSingleOrArray<isConvertible>};
const TypeClass floating{"a float, a double or an array of them", isSingleOrArray<isFloating>};
const TypeClass vectors{"a vector or an array of vectors", isSingleOrArray<isVector>};
const TypeClass matrix{"a matrix of floats or doubles", isMatrix};
const TypeClass text{"a string", isExactly<Orvel::String>};
const TypeClass texts{"a string or an array of strings", isSingleOrArray<isString>};
const TypeClass path{"a string", isExactly<Orvel::String>};
const TypeClass object{"an Object", isExactly<ObjectPtr>};
const TypeClass time{"a Simulation::Time", isExactly<Time>};
const TypeClass sceneInfo{"a File::Project::SceneInfo", isExactly<SceneInfo>};

}  // namespace type_classes

}  // namespace vtlcmd::runner
