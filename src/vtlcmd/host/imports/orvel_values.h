#pragma once

#include <cstdint>
#include <utility>

#include "vtlcmd/host/imports/api.h"
#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_ptr.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/imports/orvel_types.h"

namespace Orvel {

namespace Internal {
struct ValueRep;
using ValueHandle = Ptr<const ValueRep>;
}  // namespace Internal

/// A handle of a value together with its type; copies share the value, which never changes.
/// Operations on a constant handle are [any thread]. A getter of another type than the value's is
/// the caller's mistake, and the library decides what comes of it. [may throw]
class ORVEL_SDK_API Value {
 public:
  Value(const Value& other);
  Value& operator=(const Value& other);
  ~Value();

  Type getType() const;

  bool getBool() const;
  std::int32_t getInt() const;
  std::uint32_t getUInt() const;
  std::int64_t getLong() const;
  std::uint64_t getULong() const;
  float getFloat() const;
  double getDouble() const;
  String getString() const;
  /// One more use of the object that a class value holds; null when it holds none.
  Ptr<void> getOrvelClass() const;

  /// One more use of the array of an array value whose elements are stored as T.
  template <typename T>
  Ptr<const Array<T>> getArray() const {
    return getOpaqueArray().castTo<const Array<T>>();
  }

 protected:
  explicit Value(Internal::ValueHandle rep) noexcept;

 private:
  friend struct Internal::Representation<Value>;
  Ptr<void> getOpaqueArray() const;

  Internal::ValueHandle rep_;
};

/// A view of an array value; it keeps the value alive. Making one of any other value is the
/// caller's mistake, and the library decides what comes of it. [may throw]
class ORVEL_SDK_API ArrayValue {
 public:
  explicit ArrayValue(const Value& value);
  ~ArrayValue();

  /// [any thread, may throw]
  std::uint64_t size() const;
  /// A value of its own, which may outlive the array. An index that isn't below `size` is the
  /// caller's mistake. [any thread, may throw]
  Value getElement(std::uint64_t index);

 private:
  Value value_;
};

/// A view of a struct value; it keeps the value alive. Making one of any other value is the
/// caller's mistake, and the library decides what comes of it. [may throw]
class ORVEL_SDK_API StructValue {
 public:
  class ORVEL_SDK_API Member : public Value {
   public:
    Member(const Member& other);
    ~Member();

   private:
    friend class StructValue;
    explicit Member(Internal::ValueHandle rep) noexcept : Value(std::move(rep)) {}
  };

  explicit StructValue(const Value& value);
  ~StructValue();

  /// [any thread, may throw]
  StructType getType() const;
  /// The member of that name, a value of its own; asking for one that isn't there is the caller's
  /// mistake. [any thread, may throw]
  Member operator[](const String& name) const;

 private:
  Value value_;
};

}  // namespace Orvel
