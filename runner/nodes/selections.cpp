#include <algorithm>

#include "nodes/families.h"
#include "nodes/operand.h"
#include "vtlcmd/stand_in/type_factory.h"

namespace vtlcmd::runner::node_families {
namespace {

/// Whether a is taken or b, and not element by element of them.
bool choosesWhole(const NodeTypes& types) { return types[0].depth == 0 && types[1] == types[2]; }

bool isRegistered(const ValueType& type) {
  return withTypeNamed(registeredTypes, type.element, []<typename>() {});
}

ValueType selectedType(const NodeTypes& types) {
  if (choosesWhole(types)) return types[1];
  const std::uint32_t depth = std::max({types[0].depth, types[1].depth, types[2].depth});
  if (types[1].element != types[2].element || depth > 1 || !isRegistered(types[1])) {
    throw std::invalid_argument(nameOf(types[0]) + " can't select from " + nameOf(types[1]) +
                                " and " + nameOf(types[2]));
  }
  return {types[1].element, depth};
}

Orvel::Value select(const NodeCall& call) {
  if (choosesWhole(call.types)) return Orvel::valueAs<bool>(call[0]) ? call[1] : call[2];
  const Operand<bool> condition(call[0], call.types[0].depth > 0);
  return evaluateAs(call.resultType.element, [&]<typename T>() {
    const Operand<T> a(call[1], call.types[1].depth > 0);
    const Operand<T> b(call[2], call.types[2].depth > 0);
    return singleOrArray<T>(sharedSize({{condition.size(), a.size(), b.size()}}),
                            [&](std::uint64_t i) { return condition[i] ? a[i] : b[i]; });
  });
}

Orvel::Value filter(const NodeCall& call) {
  Orvel::ArrayValue array(call[0]);
  const Operand<bool> condition(call[1], true);
  const std::uint64_t size = *sharedSize({{array.size(), condition.size()}});
  std::vector<Orvel::Value> kept;
  for (std::uint64_t i = 0; i < size; ++i) {
    if (condition[i]) kept.push_back(array.getElement(i));
  }
  return Orvel::makeArray(libraryTypeOf(elementOf(call.resultType)), kept);
}

using namespace type_classes;

const NodeOperation selectionOperations[] = {
    {"select",
     {{"condition", &conditions}, {"a", &any}, {"b", &any}},
     NodeSetting::none,
     selectedType,
     select,
     "a where the condition is true, else b, which have one type; by element with arrays."},
    {"filter",
     {{"array", &anyArray}, {"condition", &conditionArray}},
     NodeSetting::none,
     [](const NodeTypes& types) { return types[0]; },
     filter,
     "The elements for which the condition, an array as long, is true."},
};

}  // namespace

std::span<const NodeOperation> selections() { return selectionOperations; }

}  // namespace vtlcmd::runner::node_families
