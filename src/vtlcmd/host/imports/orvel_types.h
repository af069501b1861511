#pragma once

#include <cstdint>

#include "vtlcmd/host/imports/api.h"
#include "vtlcmd/host/imports/orvel_iterator.h"
#include "vtlcmd/host/imports/orvel_ptr.h"
#include "vtlcmd/host/imports/orvel_string.h"

namespace Orvel {

namespace Internal {
struct TypeRep;
using TypeHandle = Ptr<const TypeRep>;
}  // namespace Internal

/// The library has more kinds; an array is the one that the plug-in asks for.
enum class TypeKind : std::int32_t { array = 14 };

/// What has a name in the type library: a handle that shares the library's description, which
/// never changes. Operations on a constant handle are [any thread].
class ORVEL_SDK_API NamedEntity {
 public:
  NamedEntity(const NamedEntity& other);
  NamedEntity& operator=(const NamedEntity& other);
  ~NamedEntity();

  /// `int`, `Math::float3`, `Simulation::Time`; for an array type the array's own name. [may throw]
  String getFullyQualifiedName() const;

 protected:
  explicit NamedEntity(Internal::TypeHandle rep) noexcept;

 private:
  friend struct Internal::Representation<NamedEntity>;

  Internal::TypeHandle rep_;
};

/// A handle of a value type, cheap to copy.
class ORVEL_SDK_API Type : public NamedEntity {
 public:
  Type(const Type& other);
  Type& operator=(const Type& other);
  ~Type();

  /// [no throw]
  TypeKind getTypeKind() const noexcept;

 private:
  friend struct Internal::Representation<Type>;
  explicit Type(Internal::TypeHandle rep) noexcept;
};

/// A view of a type whose kind is array; it keeps the type alive. Making one of any other type is
/// the caller's mistake, and the library decides what comes of it. [may throw]
class ORVEL_SDK_API ArrayType : public Type {
 public:
  explicit ArrayType(const Type& type);
  ~ArrayType();

  /// One level down. [may throw]
  Type getElementType() const;
};

/// A view of a struct type; it keeps the type alive. Making one of any other type is the caller's
/// mistake, and the library decides what comes of it. [may throw]
class ORVEL_SDK_API StructType : public Type {
 public:
  class ORVEL_SDK_API Member {
   public:
    Member(const Member& other);
    ~Member();

    /// [may throw]
    String getName() const;

   private:
    friend struct Internal::Representation<Member>;
    Member(String name, const Type& type);

    String name_;
    Type type_;
  };

  explicit StructType(const Type& type);
  ~StructType();

  /// In declared order. The iterators are valid as long as a handle of the type is. [no throw]
  BidirectionalIterator<Member> begin() const;
  BidirectionalIterator<Member> end() const;
};

extern template class ORVEL_SDK_API Iterator<StructType::Member>;
extern template class ORVEL_SDK_API ForwardIterator<StructType::Member>;
extern template class ORVEL_SDK_API BidirectionalIterator<StructType::Member>;

}  // namespace Orvel
