#pragma once

#include <utility>

#include "vtlcmd/host/imports/orvel_types.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace Orvel::Internal {

template <>
struct Representation<NamedEntity> {
  static const TypeHandle& of(const NamedEntity& entity) noexcept { return entity.rep_; }
};

template <>
struct Representation<Type> {
  static Type make(TypeHandle rep) noexcept { return Type(std::move(rep)); }
};

template <>
struct Representation<StructType::Member> {
  static StructType::Member make(String name, const Type& type) { return {std::move(name), type}; }
  static const Type& typeOf(const StructType::Member& member) noexcept { return member.type_; }
};

template <>
struct Representation<Value> {
  static Value make(ValueHandle rep) noexcept { return Value(std::move(rep)); }
  static const ValueHandle& of(const Value& value) noexcept { return value.rep_; }
};

/// What a handle keeps.
inline const TypeHandle& repOf(const NamedEntity& entity) noexcept {
  return Representation<NamedEntity>::of(entity);
}
inline const ValueHandle& repOf(const Value& value) noexcept {
  return Representation<Value>::of(value);
}

/// A handle of it.
inline Type typeOf(TypeHandle rep) noexcept { return Representation<Type>::make(std::move(rep)); }
inline Value valueOf(ValueHandle rep) noexcept {
  return Representation<Value>::make(std::move(rep));
}

/// The declared type of a struct's member.
inline const Type& typeOf(const StructType::Member& member) noexcept {
  return Representation<StructType::Member>::typeOf(member);
}

}  // namespace Orvel::Internal
