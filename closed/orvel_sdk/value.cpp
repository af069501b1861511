#include <stdexcept>
#include <utility>

#include "orvel_sdk/array_storage.h"
#include "orvel_sdk/representation.h"
#include "orvel_sdk/value_rep.h"
#include "vtlcmd/host/imports/orvel_values.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace Orvel {

Value::Value(Internal::ValueHandle rep) noexcept : rep_(std::move(rep)) {}
Value::Value(const Value& other) = default;
Value& Value::operator=(const Value& other) = default;
Value::~Value() = default;

Type Value::getType() const { return Internal::typeOf(rep_->type); }

bool Value::getBool() const { return valueAs<bool>(*this); }
std::int32_t Value::getInt() const { return valueAs<std::int32_t>(*this); }
std::uint32_t Value::getUInt() const { return valueAs<std::uint32_t>(*this); }
std::int64_t Value::getLong() const { return valueAs<std::int64_t>(*this); }
std::uint64_t Value::getULong() const { return valueAs<std::uint64_t>(*this); }
float Value::getFloat() const { return valueAs<float>(*this); }
double Value::getDouble() const { return valueAs<double>(*this); }
String Value::getString() const { return valueAs<String>(*this); }

Ptr<void> Value::getOrvelClass() const { return valueAs<vtlcmd::ObjectPtr>(*this); }

Ptr<void> Value::getOpaqueArray() const { return Internal::arrayIn(*this); }

namespace Internal {

ValueHandle copyToValueRep(TypeHandle type, const void* source) {
  const TypeRep& described = *type;
  return makeValueRep(std::move(type),
                      [&](void* raw) { described.operations->copy(described, raw, source); });
}

const Ptr<void>& arrayIn(const Value& value) {
  const ValueRep& rep = *repOf(value);
  if (rep.type->kind != TypeKind::array) {
    throw std::invalid_argument("A value of type " + quoted(*rep.type) + " was read as an array.");
  }
  return *static_cast<const ArrayPtr*>(rep.storage);
}

}  // namespace Internal

}  // namespace Orvel
