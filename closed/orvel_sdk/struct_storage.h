#pragma once

#include <cstddef>
#include <span>

#include "orvel_sdk/representation.h"
#include "orvel_sdk/type_rep.h"

namespace Orvel::Internal {

/// Memory member by member, for struct types that have no C++ type.
extern const StorageOperations structOperations;

/// Sets size, offsets, alignment and levels of a struct from its members, laid out as in C++.
void layOutMembers(TypeRep& type);

/// Makes the members in raw memory as copies, one source each.
void copyMembers(const TypeRep& type, void* raw, std::span<const void* const> sources);

inline const TypeRep& memberType(const TypeRep& type, std::size_t index) noexcept {
  return *repOf(typeOf(type.members[index]));
}

}  // namespace Orvel::Internal
