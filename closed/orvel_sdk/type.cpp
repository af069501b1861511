#include <stdexcept>
#include <utility>

#include "orvel_sdk/representation.h"
#include "orvel_sdk/type_rep.h"
#include "vtlcmd/host/imports/orvel_types.h"
#include "vtlcmd/stand_in/make_string.h"

namespace Orvel {

using Internal::nameOf;
using Internal::quoted;
using Internal::repOf;

NamedEntity::NamedEntity(Internal::TypeHandle rep) noexcept : rep_(std::move(rep)) {}
NamedEntity::NamedEntity(const NamedEntity& other) = default;
NamedEntity& NamedEntity::operator=(const NamedEntity& other) = default;
NamedEntity::~NamedEntity() = default;

String NamedEntity::getFullyQualifiedName() const {
  const std::string name = nameOf(*rep_);
  return makeString({name.data(), name.size()});
}

Type::Type(Internal::TypeHandle rep) noexcept : NamedEntity(std::move(rep)) {}
Type::Type(const Type& other) = default;
Type& Type::operator=(const Type& other) = default;
Type::~Type() = default;

TypeKind Type::getTypeKind() const noexcept { return repOf(*this)->kind; }

ArrayType::ArrayType(const Type& type) : Type(type) {
  if (getTypeKind() != TypeKind::array) {
    throw std::invalid_argument("The type " + quoted(*repOf(*this)) + " is no array type.");
  }
}
ArrayType::~ArrayType() = default;

Type ArrayType::getElementType() const { return Internal::typeOf(elementOf(*repOf(*this))); }

StructType::Member::Member(String name, const Type& type) : name_(std::move(name)), type_(type) {}
StructType::Member::Member(const Member& other) = default;
StructType::Member::~Member() = default;

String StructType::Member::getName() const { return name_; }

StructType::StructType(const Type& type) : Type(type) {
  if (getTypeKind() != Internal::structKind) {
    throw std::invalid_argument("The type " + quoted(*repOf(*this)) + " is no struct type.");
  }
}
StructType::~StructType() = default;

BidirectionalIterator<StructType::Member> StructType::begin() const {
  return BidirectionalIterator<Member>(repOf(*this)->members.data());
}

BidirectionalIterator<StructType::Member> StructType::end() const {
  const std::vector<Member>& members = repOf(*this)->members;
  return BidirectionalIterator<Member>(members.data() + members.size());
}

}  // namespace Orvel
