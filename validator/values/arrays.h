#pragma once

#include <cstdint>
#include <type_traits>
#include <vector>

#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/make_ptr.h"

/// Arrays to put through a plug-in, and what may be in them.

namespace vtlcmd::validator {

/// A new object for `Object`.
template <Registered T>
T zeroValue() {
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    return Vantrel::createObject();
  } else {
    return T{};
  }
}

template <typename T>
Orvel::Ptr<Orvel::Array<T>> arrayOf(const std::vector<T>& elements) {
  auto array = Orvel::makeMutable<Orvel::Array<T>>();
  for (const T& element : elements) array->append(element);
  return array;
}

// NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the linter loses track of use counts
/// One element wide at each level.
template <typename T, std::uint32_t Rank>
StoredArray<T, Rank> nestedArray(const T& value) {
  if constexpr (Rank == 1) {
    return arrayOf<T>({value});
  } else {
    return arrayOf<StoredArray<T, Rank - 1>>({nestedArray<T, Rank - 1>(value)});
  }
}
// NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)

template <typename Row>
using TypeOf = typename std::remove_cvref_t<Row>::Type;

}  // namespace vtlcmd::validator
