#include "orvel_sdk/struct_storage.h"

#include <algorithm>

namespace Orvel::Internal {
namespace {

template <typename Address>
Address* memberAddress(const TypeRep& type, Address* start, std::size_t index) noexcept {
  using Byte = std::conditional_t<std::is_const_v<Address>, const std::byte, std::byte>;
  return static_cast<Byte*>(start) + type.offsets[index];
}

void destroyMembers(const TypeRep& type, void* value, std::size_t count) noexcept {
  while (count-- > 0) {
    const TypeRep& member = memberType(type, count);
    member.operations->destroy(member, memberAddress(type, value, count));
  }
}

/// Makes all members with `construct`, or none when one throws.
template <typename Construct>
void makeMembers(const TypeRep& type, void* raw, Construct construct) {
  std::size_t made = 0;
  try {
    for (; made < type.members.size(); ++made) {
      construct(memberType(type, made), memberAddress(type, raw, made), made);
    }
  } catch (...) {
    destroyMembers(type, raw, made);
    throw;
  }
}

void zeroStruct(const TypeRep& type, void* raw) {
  makeMembers(type, raw, [](const TypeRep& member, void* address, std::size_t) {
    member.operations->zero(member, address);
  });
}

void copyStruct(const TypeRep& type, void* raw, const void* source) {
  makeMembers(type, raw, [&](const TypeRep& member, void* address, std::size_t index) {
    member.operations->copy(member, address, memberAddress(type, source, index));
  });
}

void destroyStruct(const TypeRep& type, void* value) noexcept {
  destroyMembers(type, value, type.members.size());
}

std::uint64_t roundUp(std::uint64_t offset, std::uint64_t alignment) noexcept {
  return (offset + alignment - 1) / alignment * alignment;
}

}  // namespace

const StorageOperations structOperations{zeroStruct, copyStruct, destroyStruct};

void layOutMembers(TypeRep& type) {
  std::uint64_t end = 0;
  type.alignment = 1;
  for (std::size_t i = 0; i < type.members.size(); ++i) {
    const TypeRep& member = memberType(type, i);
    type.offsets.push_back(roundUp(end, member.alignment));
    end = type.offsets.back() + member.size;
    type.alignment = std::max(type.alignment, member.alignment);
    type.structLevels = std::max(type.structLevels, member.structLevels);
  }
  ++type.structLevels;
  type.size = std::max<std::uint64_t>(roundUp(end, type.alignment), 1);
}

void copyMembers(const TypeRep& type, void* raw, std::span<const void* const> sources) {
  makeMembers(type, raw, [&](const TypeRep& member, void* address, std::size_t index) {
    member.operations->copy(member, address, sources[index]);
  });
}

}  // namespace Orvel::Internal
