#include <algorithm>

#include "nodes/families.h"
#include "nodes/integer_argument.h"
#include "nodes/operand.h"
#include "nodes/random_numbers.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::runner::node_families {
namespace {

ValueType arrayOfFirst(const NodeTypes& types) { return arrayOf(types[0]); }

/// All sources of the list parameter 0 have one type.
const ValueType& commonType(const NodeTypes& types) {
  for (const ValueType& type : types.arguments[0]) {
    if (type != types[0])
      throw std::invalid_argument("the list mixes " + nameOf(types[0]) + " and " + nameOf(type));
  }
  return types[0];
}

Orvel::Value makeResult(const NodeCall& call, std::span<const Orvel::Value> elements) {
  return Orvel::makeArray(libraryTypeOf(elementOf(call.resultType)), elements);
}

Orvel::Value range(const NodeCall& call) {
  const std::uint64_t count = countArgument(call, 0, "the count");
  return evaluateAs(call.types[0].element, [&]<typename T>() -> Orvel::Value {
    if constexpr (Number<T>) {
      return arrayValue(generateArray<T>(count, [](std::uint64_t i) { return static_cast<T>(i); }));
    } else {
      throw NodeError("no range of " + call.types[0].element);
    }
  });
}

Orvel::Value randomNumbers(const NodeCall& call) {
  const std::uint64_t count = countArgument(call, 0, "the count");
  const std::uint64_t seed = countArgument(call, 1, "the seed");
  return arrayValue(
      generateArray<float>(count, [seed](std::uint64_t i) { return randomNumber(seed, i); }));
}

Orvel::Value fill(const NodeCall& call) {
  const std::uint64_t count = countArgument(call, 0, "the count");
  std::optional<Orvel::Value> numbers;
  if (call.types[1].depth == 0) {
    withTypeNamed(registeredTypes, call.types[1].element, [&]<typename T>() {
      const T& value = Orvel::valueAs<T>(call[1]);
      numbers = arrayValue(generateArray<T>(count, [&](std::uint64_t) { return value; }));
    });
  }
  if (numbers) return *std::move(numbers);
  return makeResult(call, std::vector<Orvel::Value>(count, call[1]));
}

Orvel::Value element(const NodeCall& call) {
  Orvel::ArrayValue array(call[0]);
  const std::uint64_t index = countArgument(call, 1, "the index");
  if (index >= array.size()) {
    throw NodeError("the index " + std::to_string(index) + " is out of range, the array has " +
                    std::to_string(array.size()) + " elements");
  }
  return array.getElement(index);
}

void appendElements(std::vector<Orvel::Value>& elements, const Orvel::Value& array,
                    std::uint64_t start, std::uint64_t count) {
  Orvel::ArrayValue source(array);
  for (std::uint64_t i = 0; i < count; ++i) {
    if (i % elementsBetweenPolls == 0) throwIfAbandoned();
    elements.push_back(source.getElement(start + i));
  }
}

Orvel::Value slice(const NodeCall& call) {
  const std::uint64_t size = Orvel::ArrayValue(call[0]).size();
  const std::uint64_t start = countArgument(call, 1, "the start");
  const std::uint64_t count = countArgument(call, 2, "the count");
  if (start > size || count > size - start) {
    throw NodeError("a slice of length " + std::to_string(count) + " from " +
                    std::to_string(start) + " on is out of range, the array has " +
                    std::to_string(size) + " elements");
  }
  std::vector<Orvel::Value> elements;
  appendElements(elements, call[0], start, count);
  return makeResult(call, elements);
}

Orvel::Value concatenate(const NodeCall& call) {
  std::vector<Orvel::Value> elements;
  for (const Orvel::Value& array : call.arguments[0])
    appendElements(elements, array, 0, Orvel::ArrayValue(array).size());
  return makeResult(call, elements);
}

using namespace type_classes;

const NodeOperation arrayOperations[] = {
    {"range",
     {{"count", &integer}},
     NodeSetting::none,
     arrayOfFirst,
     range,
     "The numbers from 0 up to the count, which is not among them."},
    {"random",
     {{"count", &integer}, {"seed", &integer}},
     NodeSetting::none,
     [](const NodeTypes&) {
       return ValueType{"float", 1};
     },
     randomNumbers,
     "Evenly spread floats from 0 up to 1, the same for the same seed everywhere."},
    {"fill",
     {{"count", &integer}, {"value", &any}},
     NodeSetting::none,
     [](const NodeTypes& types) { return arrayOf(types[1]); },
     fill,
     "An array of so many times the value."},
    {"array",
     {{"elements", &any, true}},
     NodeSetting::none,
     [](const NodeTypes& types) { return arrayOf(commonType(types)); },
     [](const NodeCall& call) { return makeResult(call, call.arguments[0]); },
     "An array of the given elements, which all have one type."},
    {"element",
     {{"array", &anyArray}, {"index", &integer}},
     NodeSetting::none,
     [](const NodeTypes& types) { return elementOf(types[0]); },
     element,
     "The element at an index, counted from 0."},
    {"length",
     {{"array", &anyArray}},
     NodeSetting::none,
     [](const NodeTypes&) {
       return ValueType{"long", 0};
     },
     [](const NodeCall& call) {
       return Orvel::makeValue(static_cast<std::int64_t>(Orvel::ArrayValue(call[0]).size()));
     },
     "The number of elements."},
    {"slice",
     {{"array", &anyArray}, {"start", &integer}, {"count", &integer}},
     NodeSetting::none,
     [](const NodeTypes& types) { return types[0]; },
     slice,
     "So many elements from the start on, which is counted from 0."},
    {"concatenate",
     {{"arrays", &anyArray, true}},
     NodeSetting::none,
     [](const NodeTypes& types) { return commonType(types); },
     concatenate,
     "The elements of all arrays, one array behind the other."},
};

}  // namespace

std::span<const NodeOperation> arrays() { return arrayOperations; }

}  // namespace vtlcmd::runner::node_families
