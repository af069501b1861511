#pragma once

#include <cstddef>
#include <cstdint>

#include "vtlcmd/host/imports/api.h"

namespace Orvel::Internal {

/// The tag of a stored type. Tags are compared by content, so that every module may have its own.
/// A tag is constant and lives until the process ends, or its module is unloaded. [any thread]
struct TypeInfo {
  /// The type's spelling, read by `length`, in bytes; static storage.
  const char* name;
  std::uint64_t length;
  /// Not 0: equal to itself alone. 0 in every tag of ours.
  std::uint8_t unique;
  /// 0 for value types, 2 for `Object`.
  std::uint8_t kind;
  /// Array nesting: 0 for a single value.
  std::uint32_t rank;
  std::uint64_t reserved;

  /// The tag that stands for no type at all, and the type of an empty Any. What it says of itself
  /// is the library's.
  ORVEL_CORE_API static const TypeInfo s_void;
};

static_assert(offsetof(TypeInfo, name) == 0 && offsetof(TypeInfo, length) == 8);
static_assert(offsetof(TypeInfo, unique) == 16 && offsetof(TypeInfo, kind) == 17);
static_assert(offsetof(TypeInfo, rank) == 20 && offsetof(TypeInfo, reserved) == 24);
static_assert(sizeof(TypeInfo) == 32);

}  // namespace Orvel::Internal
