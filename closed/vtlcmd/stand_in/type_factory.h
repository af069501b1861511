#pragma once

#include <span>
#include <vector>

#include "vtlcmd/host/imports/orvel_types.h"
#include "vtlcmd/stand_in/stored_types.h"

/// How a host comes by types. Types never change, so all functions may be called from any thread.

namespace Orvel {

/// The type of a name: one of `knownTypeNames`, or `array<` name `>` to any depth, without blanks.
/// Throws std::invalid_argument, which quotes the text, for any other.
ORVEL_SDK_API Type typeNamed(StringView name);

/// The names of all types with a C++ type of their own, in the order of `storedTypes`.
ORVEL_SDK_API std::vector<String> knownTypeNames();

/// The array type of an element type, array types included.
ORVEL_SDK_API Type makeArrayType(const Type& element);

struct MemberSpec {
  String name;
  Type type;
};

/// A new struct type with these members in this order; none at all is allowed. It is a type of its
/// own: no other one equals it, whatever the names. Throws std::invalid_argument when two members
/// share a name, or when it would be more than 256 structs inside one another, arrays apart.
ORVEL_SDK_API Type makeStructType(StringView name, std::span<const MemberSpec> members);

/// Whether two handles stand for one type. Array types are equal when their elements are.
ORVEL_SDK_API bool equalTypes(const Type& a, const Type& b) noexcept;

/// The declared type of a struct's member; valid as long as the member is.
ORVEL_SDK_API const Type& declaredType(const StructType::Member& member) noexcept;

namespace Internal {
ORVEL_SDK_API Type storedType(StoredTypeId id);
}  // namespace Internal

/// The type whose values are stored as T.
template <Stored T>
Type typeOf() {
  return Internal::storedType(Internal::storedTypeId<T>);
}

}  // namespace Orvel
