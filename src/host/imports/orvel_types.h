#pragma once

#include <cstdint>

#include "host/imports/api.h"
#include "host/imports/orvel_iterator.h"
#include "host/imports/orvel_ptr.h"
#include "host/imports/orvel_string.h"

namespace Orvel {

namespace Internal {
struct TypeRep;
using TypeHandle = Ptr<const TypeRep>;
}  // namespace Internal

/// The library has more kinds; an array is the one that the plug-in asks for.
enum class TypeKind : std::int32_t { array = 14 };

class ORVEL_SDK_API NamedEntity {
 public:
  NamedEntity(const NamedEntity& other);
  NamedEntity& operator=(const NamedEntity& other);
  ~NamedEntity();

  /// `int`, `Math::float3`, `Simulation::Time`; for an array type the array's own name.
  String getFullyQualifiedName() const;

  /// The library's description behind the handle; meaningless outside the library.
  const Internal::TypeHandle& rep() const noexcept { return rep_; }

 protected:
  explicit NamedEntity(Internal::TypeHandle rep) noexcept;

 private:
  Internal::TypeHandle rep_;
};

/// A handle of a value type, cheap to copy.
class ORVEL_SDK_API Type : public NamedEntity {
 public:
  /// By the library only.
  explicit Type(Internal::TypeHandle rep) noexcept;
  Type(const Type& other);
  Type& operator=(const Type& other);
  ~Type();

  TypeKind getTypeKind() const noexcept;
};

/// A view of a type whose kind is array. Making one of any other type is the caller's mistake.
class ORVEL_SDK_API ArrayType : public Type {
 public:
  explicit ArrayType(const Type& type);
  ~ArrayType();

  /// One level down.
  Type getElementType() const;
};

/// A view of a struct type.
class ORVEL_SDK_API StructType : public Type {
 public:
  class ORVEL_SDK_API Member {
   public:
    Member(String name, const Type& type);
    Member(const Member& other);
    ~Member();

    String getName() const;
    /// For hosts: the declared type.
    const Type& declaredType() const noexcept { return type_; }

   private:
    String name_;
    Type type_;
  };

  explicit StructType(const Type& type);
  ~StructType();

  /// In declared order. The iterators are valid as long as a handle of the type is.
  BidirectionalIterator<Member> begin() const;
  BidirectionalIterator<Member> end() const;
};

extern template class ORVEL_SDK_API Iterator<StructType::Member>;
extern template class ORVEL_SDK_API ForwardIterator<StructType::Member>;
extern template class ORVEL_SDK_API BidirectionalIterator<StructType::Member>;

}  // namespace Orvel
