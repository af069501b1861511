#include <stdexcept>

#include "orvel_sdk/representation.h"
#include "orvel_sdk/struct_storage.h"
#include "orvel_sdk/value_rep.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace Orvel {

using Internal::quoted;
using Internal::repOf;
using Internal::TypeRep;

StructValue::Member::Member(const Member& other) = default;
StructValue::Member::~Member() = default;

StructValue::StructValue(const Value& value) : value_(value) {
  const TypeRep& type = *repOf(value_)->type;
  if (type.kind != Internal::structKind) {
    throw std::invalid_argument("A value of type " + quoted(type) + " was read as a struct.");
  }
}
StructValue::~StructValue() = default;

StructType StructValue::getType() const { return StructType(value_.getType()); }

StructValue::Member StructValue::operator[](const String& name) const {
  const TypeRep& type = *repOf(value_)->type;
  for (std::size_t i = 0; i < type.members.size(); ++i) {
    if (type.members[i].getName() != name) continue;
    const auto* start = static_cast<const std::byte*>(repOf(value_)->storage);
    return Member(Internal::copyToValueRep(repOf(Internal::typeOf(type.members[i])),
                                           start + type.offsets[i]));
  }
  throw std::invalid_argument("The type " + quoted(type) + " has no member named " +
                              quoted(Internal::viewOf(name)) + ".");
}

}  // namespace Orvel
