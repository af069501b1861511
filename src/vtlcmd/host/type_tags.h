#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "vtlcmd/host/imports/orvel_type_info.h"

namespace vtlcmd {

/// A tag with the length worked out from the spelling, which must have static storage.
constexpr Orvel::Internal::TypeInfo makeTag(std::string_view spelling, std::uint8_t kind,
                                            std::uint32_t rank) noexcept {
  return {spelling.data(), spelling.size(), 0, kind, rank, 0};
}

/// Whether two tags mean one type. Unique tags equal themselves alone; others go by content.
inline bool sameType(const Orvel::Internal::TypeInfo& a,
                     const Orvel::Internal::TypeInfo& b) noexcept {
  if (a.unique != 0 && b.unique != 0) return &a == &b;
  if (a.kind != b.kind) return false;
  if (a.rank != b.rank) return false;
  if (a.name == b.name) return true;
  if (a.length != b.length) return false;
  return a.length == 0 || std::memcmp(a.name, b.name, a.length) == 0;
}

/// The order of the tag table: rank, kind, then the spelling by signed bytes, the shorter first.
struct TagOrder {
  bool operator()(const Orvel::Internal::TypeInfo* a,
                  const Orvel::Internal::TypeInfo* b) const noexcept {
    if (a->rank != b->rank) return a->rank < b->rank;
    if (a->kind != b->kind) return a->kind < b->kind;
    if (a->name == b->name) return false;
    const std::uint64_t common = std::min(a->length, b->length);
    for (std::uint64_t i = 0; i < common; ++i) {
      const auto left = static_cast<std::int8_t>(a->name[i]);
      const auto right = static_cast<std::int8_t>(b->name[i]);
      if (left != right) return left < right;
    }
    return a->length < b->length;
  }
};

}  // namespace vtlcmd
