#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "vtlcmd/host/imports/orvel_types.h"
#include "vtlcmd/stand_in/stored_types.h"

namespace Orvel::Internal {

/// The kinds beside `array`.
inline constexpr TypeKind plainKind{0};
inline constexpr TypeKind structKind{1};

/// What is done with the memory of a value of `type`.
struct StorageOperations {
  /// Makes the zero value in raw memory.
  void (*zero)(const TypeRep& type, void* raw);
  /// Makes a copy in raw memory.
  void (*copy)(const TypeRep& type, void* raw, const void* source);
  void (*destroy)(const TypeRep& type, void* value) noexcept;
};

/// Structs inside one another, at most: their values are made, copied and ended level by level.
/// Members of an array type don't count, since their elements lie elsewhere.
inline constexpr std::uint32_t maximumStructLevels = 256;

/// A type, never changed once a handle of it is out. An array type of any depth refers to its
/// innermost element, so that nothing recurs on the depth.
struct TypeRep {
  static constexpr std::size_t notStored = storedTypeCount;

  /// Of the innermost element for an array.
  String name;
  TypeKind kind;
  /// In bytes, of one value.
  std::uint64_t size;
  std::uint64_t alignment;
  const StorageOperations* operations;

  /// Place in `storedTypes`, for a type that has one.
  std::size_t storedIndex = notStored;

  /// Of a struct, in declared order, and where they lie.
  std::vector<StructType::Member> members{};
  std::vector<std::uint64_t> offsets{};
  /// Of a struct: 1, and those of the deepest member.
  std::uint32_t structLevels = 0;

  /// Of an array; the element has depth 0.
  TypeHandle innermost{};
  std::uint32_t depth = 0;
};

/// The type under all array levels.
inline const TypeRep& innermostOf(const TypeRep& type) noexcept {
  return type.depth == 0 ? type : *type.innermost;
}

bool isStored(const TypeRep& type, StoredTypeId id) noexcept;

/// The type of arrays of an element type, with so many levels more, at least one.
TypeHandle arrayOf(const TypeHandle& element, std::uint32_t levels = 1);

/// One level down from an array type.
TypeHandle elementOf(const TypeRep& array);

std::string nameOf(const TypeRep& type);

/// The name between quotes, for messages.
std::string quoted(const TypeRep& type);
std::string quoted(std::string_view text);

inline std::string_view viewOf(StringView view) noexcept { return {view.data, view.size}; }

}  // namespace Orvel::Internal
