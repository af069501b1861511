#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <new>
#include <utility>

#include "platform/interrupt.h"
#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_ptr.h"
#include "vtlcmd/stand_in/make_ptr.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {

/// An empty array with room for `count` elements. Throws std::bad_alloc.
template <typename T>
Orvel::Array<T> arrayWithRoom(std::uint64_t count) {
  Orvel::Array<T> array;
  if (count == 0) return array;
  if (count > std::numeric_limits<std::int64_t>::max() / sizeof(T)) throw std::bad_alloc();
  array.data =
      static_cast<T*>(Orvel::Internal::UntypedTypeRep(sizeof(T), alignof(T)).allocate(count));
  array.capacity = count;
  return array;
}

/// So many elements are made in far less than a tenth of a second.
inline constexpr std::uint64_t elementsBetweenPolls = 1U << 16U;

/// An array whose element i is `function(i)`. Throws FrameAbandoned.
template <typename T, typename Function>
Orvel::Array<T> generateArray(std::uint64_t count, Function&& function) {
  Orvel::Array<T> array = arrayWithRoom<T>(count);
  for (std::uint64_t start = 0; start < count; start += elementsBetweenPolls) {
    throwIfAbandoned();
    const std::uint64_t end = start + std::min(elementsBetweenPolls, count - start);
    for (std::uint64_t i = start; i < end; ++i) array.append(function(i));
  }
  return array;
}

template <typename T>
Orvel::Ptr<Orvel::Array<T>> shareArray(Orvel::Array<T> array) {
  return Orvel::makeMutable<Orvel::Array<T>>(std::move(array));
}

template <typename T>
Orvel::Value arrayValue(Orvel::Array<T> array) {
  return Orvel::makeValue(shareArray(std::move(array)));
}

/// The array in an array value whose elements are stored as T.
template <typename T>
const Orvel::Array<T>& arrayIn(const Orvel::Value& value) {
  return *Orvel::valueAs<Orvel::Ptr<Orvel::Array<T>>>(value);
}

}  // namespace vtlcmd::runner
