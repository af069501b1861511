#pragma once

#include <cstdint>
#include <utility>

#include "host/imports/api.h"
#include "host/imports/orvel_array.h"
#include "host/imports/orvel_ptr.h"
#include "host/imports/orvel_string.h"
#include "host/imports/orvel_types.h"

namespace Orvel {

namespace Internal {
struct ValueRep;
using ValueHandle = Ptr<const ValueRep>;
}  // namespace Internal

/// A handle of a value together with its type; copies share the value, which never changes.
/// A getter of another type than the value's is the caller's mistake; the library decides.
class ORVEL_SDK_API Value {
 public:
  /// By the library only.
  explicit Value(Internal::ValueHandle rep) noexcept;
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
  /// The object of a class value.
  Ptr<void> getOrvelClass() const;

  /// The array of an array value whose elements are stored as T.
  template <typename T>
  Ptr<const Array<T>> getArray() const {
    return getOpaqueArray().castTo<const Array<T>>();
  }

  /// The library's storage behind the handle; meaningless outside the library.
  const Internal::ValueHandle& rep() const noexcept { return rep_; }

 private:
  Ptr<void> getOpaqueArray() const;

  Internal::ValueHandle rep_;
};

/// A view of an array value.
class ORVEL_SDK_API ArrayValue {
 public:
  explicit ArrayValue(const Value& value);
  ~ArrayValue();

  std::uint64_t size() const;
  Value getElement(std::uint64_t index);

 private:
  Value value_;
};

/// A view of a struct value.
class ORVEL_SDK_API StructValue {
 public:
  class ORVEL_SDK_API Member : public Value {
   public:
    using Value::Value;
    Member(const Member& other);
    ~Member();
  };

  explicit StructValue(const Value& value);
  ~StructValue();

  StructType getType() const;
  /// The member of that name; asking for one that isn't there is the caller's mistake.
  Member operator[](const String& name) const;

 private:
  Value value_;
};

}  // namespace Orvel
