#pragma once

#include <cstdint>

#include "orvel_sdk/type_rep.h"
#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_ptr.h"

namespace Orvel::Internal {

/// What lies in memory for an array value: a shared pointer to an Array of whatever element, whose
/// shape is the same for all.
using ArrayPtr = Ptr<void>;

extern const StorageOperations arrayOperations;

/// An Array whose element type is known at run time only: its three fields first, with the same
/// meaning.
struct RunTimeArray {
  explicit RunTimeArray(TypeHandle element) noexcept : elementType(std::move(element)) {}
  RunTimeArray(TypeHandle element, std::uint64_t count);
  RunTimeArray(const RunTimeArray&) = delete;
  RunTimeArray& operator=(const RunTimeArray&) = delete;
  ~RunTimeArray();

  /// Copies one more element; never beyond the capacity.
  void append(const void* element);

  void* data = nullptr;
  std::uint64_t size = 0;
  std::uint64_t capacity = 0;
  TypeHandle elementType;
};

static_assert(offsetof(RunTimeArray, data) == offsetof(Array<int>, data) &&
              offsetof(RunTimeArray, size) == offsetof(Array<int>, size) &&
              offsetof(RunTimeArray, capacity) == offsetof(Array<int>, capacity));

/// The elements of an array value, in place. A null array has none.
struct Elements {
  const std::byte* data;
  std::uint64_t count;
};

Elements elementsOf(const ArrayPtr& array) noexcept;

}  // namespace Orvel::Internal
