#pragma once

#include <span>

#include "vtlcmd/host/imports/orvel_values.h"
#include "vtlcmd/stand_in/stored_types.h"
#include "vtlcmd/stand_in/type_factory.h"

/// How a host makes and reads values. A value never changes, so all functions may be called from
/// any thread. Arrays and objects inside a value are shared with whoever else holds them.

namespace Orvel {

/// Numbers and components 0, an empty string, a null object, an array without elements (never a
/// null one), a struct of zeros.
ORVEL_SDK_API Value makeZero(const Type& type);

/// A struct value, one value a member in declared order. Throws std::invalid_argument when the type
/// is no struct, or number or types of the members don't fit.
ORVEL_SDK_API Value makeStruct(const Type& type, std::span<const Value> members);

/// An array value. Throws std::invalid_argument when an element is of another type.
ORVEL_SDK_API Value makeArray(const Type& elementType, std::span<const Value> elements);

/// Where the value lies: a T of the stored type, for an array its Ptr, for a struct its members in
/// declared order at the offsets that C++ would give them. Valid as long as a copy of the value is.
ORVEL_SDK_API const void* valueAddress(const Value& value) noexcept;

namespace Internal {
/// A value of the type, copied from memory that holds one.
ORVEL_SDK_API Value copyValue(const Type& type, const void* source);
/// `valueAddress`; throws std::invalid_argument when the value isn't of the stored type.
ORVEL_SDK_API const void* checkedAddress(const Value& value, StoredTypeId id);
}  // namespace Internal

template <Stored T>
Value makeValue(T value) {
  return Internal::copyValue(typeOf<T>(), &value);
}

/// The value itself, not a copy; valid as long as a copy of the handle is. Throws
/// std::invalid_argument, which names both types, when the value is stored as another type.
template <Stored T>
const T& valueAs(const Value& value) {
  return *static_cast<const T*>(Internal::checkedAddress(value, Internal::storedTypeId<T>));
}

}  // namespace Orvel
