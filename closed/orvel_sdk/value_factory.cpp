#include "vtlcmd/stand_in/value_factory.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "orvel_sdk/array_storage.h"
#include "orvel_sdk/representation.h"
#include "orvel_sdk/struct_storage.h"
#include "orvel_sdk/value_rep.h"

namespace Orvel {

using Internal::quoted;
using Internal::repOf;
using Internal::TypeRep;

Value makeZero(const Type& type) {
  const TypeRep& rep = *repOf(type);
  return Internal::valueOf(
      Internal::makeValueRep(repOf(type), [&](void* raw) { rep.operations->zero(rep, raw); }));
}

Value makeStruct(const Type& type, std::span<const Value> members) {
  const StructType structType(type);
  const TypeRep& rep = *repOf(structType);
  if (members.size() != rep.members.size()) {
    throw std::invalid_argument("The type " + quoted(rep) + " has " +
                                std::to_string(rep.members.size()) + " members, not " +
                                std::to_string(members.size()) + ".");
  }
  std::vector<const void*> sources;
  for (const Value& member : members) {
    const StructType::Member& declared = rep.members[sources.size()];
    if (!equalTypes(member.getType(), Internal::typeOf(declared))) {
      throw std::invalid_argument("The member " + quoted(Internal::viewOf(declared.getName())) +
                                  " of the type " + quoted(rep) + " is of type " +
                                  quoted(*repOf(Internal::typeOf(declared))) + ", not " +
                                  quoted(*repOf(member)->type) + ".");
    }
    sources.push_back(valueAddress(member));
  }
  return Internal::valueOf(Internal::makeValueRep(
      repOf(type), [&](void* raw) { Internal::copyMembers(rep, raw, sources); }));
}

Value makeArray(const Type& elementType, std::span<const Value> elements) {
  auto array = Internal::makeOwned<Internal::RunTimeArray>(repOf(elementType), elements.size());
  for (const Value& element : elements) {
    if (!equalTypes(element.getType(), elementType)) {
      throw std::invalid_argument("Element " + std::to_string(array->size) + " is of type " +
                                  quoted(*repOf(element)->type) + ", not " +
                                  quoted(*repOf(elementType)) + ".");
    }
    array->append(valueAddress(element));
  }
  const Internal::ArrayPtr opaque(std::move(array));
  return Internal::copyValue(makeArrayType(elementType), &opaque);
}

const void* valueAddress(const Value& value) noexcept { return repOf(value)->storage; }

Value Internal::copyValue(const Type& type, const void* source) {
  return Internal::valueOf(copyToValueRep(repOf(type), source));
}

const void* Internal::checkedAddress(const Value& value, StoredTypeId id) {
  const TypeRep& type = *repOf(value)->type;
  if (!isStored(type, id)) {
    throw std::invalid_argument("A value of type " + quoted(type) + " was read as " +
                                quoted(*repOf(storedType(id))) + ".");
  }
  return repOf(value)->storage;
}

}  // namespace Orvel
