#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "vtlcmd/host/imports/orvel_type_info.h"
#include "vtlcmd/host/type_tags.h"

namespace vtlcmd {

struct AnyOpArgs;

/// One function a stored type, array rank included. It only ever gets the six operations.
using AnyManager = void (*)(AnyOpArgs*);

/// Holds one value of any type, or nothing.
///
/// storage  three words: a value of at most that size in place, or in its first word a pointer to
///          a heap block that this Any owns. Without meaning while the Any is empty.
/// manager  the operations of the held type; null exactly when the Any is empty. It comes along
///          from the module that made the value, so any module can copy, move and end it.
///
/// Not safe for concurrent change. Allocation failure leaves as std::bad_alloc.
class Any {
 public:
  Any() noexcept = default;
  Any(const Any& other);
  Any(Any&& other) noexcept;
  ~Any();

  /// Ends the held value first, then copies: assigned to itself, an Any ends up empty.
  Any& operator=(const Any& other);
  Any& operator=(Any&& other) noexcept;

  bool holdsValue() const noexcept { return manager != nullptr; }
  /// The held type's tag, `s_void` when empty.
  const Orvel::Internal::TypeInfo& type() const noexcept;

  std::uintptr_t storage[3]{};
  AnyManager manager = nullptr;
};

static_assert(offsetof(Any, storage) == 0 && offsetof(Any, manager) == 24 && sizeof(Any) == 32);

enum class AnyOp : std::int32_t {
  /// Ends the value of `self` and sets its manager to null.
  destroy = 0,
  /// Puts a copy into `other`, an Any treated as raw. `self` stays.
  copy = 1,
  /// Moves the value into `other`, an Any treated as raw, and sets `self`'s manager to null.
  move = 2,
  /// `other` is the tag wanted; `result` becomes the value's address when it is the own tag, else
  /// null.
  cast = 3,
  /// `other` becomes the address of the value.
  address = 4,
  /// `other` becomes the own tag.
  type = 5,
};

struct AnyOpArgs {
  AnyOp op;
  Any* self;
  void* other;
  void* result;
};

static_assert(offsetof(AnyOpArgs, self) == 8 && offsetof(AnyOpArgs, other) == 16 &&
              offsetof(AnyOpArgs, result) == 24 && sizeof(AnyOpArgs) == 32);

namespace any_operations {

// The typed form of each operation. None may be called on an empty Any.

inline void destroy(Any& self) {
  AnyOpArgs args{AnyOp::destroy, &self, nullptr, nullptr};
  self.manager(&args);
}

inline void copy(const Any& self, Any& destination) {
  AnyOpArgs args{AnyOp::copy, const_cast<Any*>(&self), &destination, nullptr};
  self.manager(&args);
}

inline void move(Any& self, Any& destination) noexcept {
  AnyOpArgs args{AnyOp::move, &self, &destination, nullptr};
  self.manager(&args);
}

inline const void* cast(const Any& self, const Orvel::Internal::TypeInfo& wanted) {
  AnyOpArgs args{AnyOp::cast, const_cast<Any*>(&self),
                 const_cast<Orvel::Internal::TypeInfo*>(&wanted), nullptr};
  self.manager(&args);
  return args.result;
}

inline const void* address(const Any& self) {
  AnyOpArgs args{AnyOp::address, const_cast<Any*>(&self), nullptr, nullptr};
  self.manager(&args);
  return args.other;
}

inline const Orvel::Internal::TypeInfo& type(const Any& self) {
  AnyOpArgs args{AnyOp::type, const_cast<Any*>(&self), nullptr, nullptr};
  self.manager(&args);
  return *static_cast<const Orvel::Internal::TypeInfo*>(args.other);
}

}  // namespace any_operations

inline Any::Any(const Any& other) {
  if (other.holdsValue()) any_operations::copy(other, *this);
}

inline Any::Any(Any&& other) noexcept {
  if (other.holdsValue()) any_operations::move(other, *this);
}

inline Any::~Any() {
  if (holdsValue()) any_operations::destroy(*this);
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment, cert-oop54-cpp): see the declaration
inline Any& Any::operator=(const Any& other) {
  if (holdsValue()) any_operations::destroy(*this);
  if (other.holdsValue()) any_operations::copy(other, *this);
  return *this;
}

inline Any& Any::operator=(Any&& other) noexcept {
  if (holdsValue()) any_operations::destroy(*this);
  if (other.holdsValue()) any_operations::move(other, *this);
  return *this;
}

inline const Orvel::Internal::TypeInfo& Any::type() const noexcept {
  return holdsValue() ? any_operations::type(*this) : Orvel::Internal::TypeInfo::s_void;
}

/// Exchanges two values through moves, each by its own manager. Storing a result goes through it:
/// the new value is made in a temporary, so that the old one ends last.
inline void swap(Any& a, Any& b) noexcept {
  if (&a == &b) return;
  if (a.holdsValue() && b.holdsValue()) {
    Any held(std::move(b));
    b = std::move(a);
    a = std::move(held);
  } else if (a.holdsValue()) {
    b = std::move(a);
  } else if (b.holdsValue()) {
    a = std::move(b);
  }
}

/// Where a value of type T is kept: in the three words, or in a heap block behind the first.
// NOLINTBEGIN(misc-redundant-expression): the linter takes the two alignments for one
template <typename T>
inline constexpr bool storedInPlace = sizeof(T) <= sizeof(Any::storage) &&
                                      alignof(T) <= alignof(Any);
// NOLINTEND(misc-redundant-expression)

namespace any_operations {

template <typename T>
T* valueOf(Any& any) noexcept {
  if constexpr (storedInPlace<T>) {
    return std::launder(reinterpret_cast<T*>(&any.storage));
  } else {
    return std::bit_cast<T*>(any.storage[0]);
  }
}

template <typename T, typename... Arguments>
void construct(Any& raw, Arguments&&... arguments) {
  ::new (&raw) Any;
  if constexpr (storedInPlace<T>) {
    ::new (static_cast<void*>(&raw.storage)) T(std::forward<Arguments>(arguments)...);
  } else {
    raw.storage[0] = reinterpret_cast<std::uintptr_t>(new T(std::forward<Arguments>(arguments)...));
  }
}

template <typename T>
void end(T* value) noexcept {
  if constexpr (storedInPlace<T>) {
    std::destroy_at(value);
  } else {
    delete value;
  }
}

/// The manager of T under a tag of static storage.
template <typename T, const Orvel::Internal::TypeInfo& Tag>
void manage(AnyOpArgs* args) {
  Any& self = *args->self;
  T* value = valueOf<T>(self);
  switch (args->op) {
    case AnyOp::destroy:
      end(value);
      self.manager = nullptr;
      break;
    case AnyOp::copy: {
      Any& destination = *static_cast<Any*>(args->other);
      construct<T>(destination, std::as_const(*value));
      destination.manager = self.manager;
      break;
    }
    case AnyOp::move: {
      Any& destination = *static_cast<Any*>(args->other);
      if constexpr (storedInPlace<T>) {
        construct<T>(destination, std::move(*value));
      } else {
        ::new (&destination) Any;
        destination.storage[0] = self.storage[0];
      }
      destination.manager = self.manager;
      self.manager = nullptr;
      break;
    }
    case AnyOp::cast:
      args->result = sameType(*static_cast<const Orvel::Internal::TypeInfo*>(args->other), Tag)
                         ? value
                         : nullptr;
      break;
    case AnyOp::address:
      args->other = value;
      break;
    case AnyOp::type:
      args->other = const_cast<Orvel::Internal::TypeInfo*>(&Tag);
      break;
  }
}

}  // namespace any_operations

/// An Any that holds `value` under a tag of the caller's. For types of the tables, `makeAny`.
template <const Orvel::Internal::TypeInfo& Tag, typename T>
Any makeTaggedAny(T value) {
  Any any;
  any_operations::construct<T>(any, std::move(value));
  any.manager = &any_operations::manage<T, Tag>;
  return any;
}

}  // namespace vtlcmd
