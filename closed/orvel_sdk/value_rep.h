#pragma once

#include <utility>

#include "orvel_core/owned_block.h"
#include "orvel_sdk/type_rep.h"
#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_values.h"

namespace Orvel::Internal {

/// A value: its type and the memory that holds it.
struct ValueRep {
  /// `construct` makes a value of the type in the raw memory that it gets.
  template <typename Construct>
  ValueRep(TypeHandle valueType, Construct construct)
      : type(std::move(valueType)), storage(memory().allocate(1)) {
    try {
      construct(storage);
    } catch (...) {
      memory().deallocate(storage, 1);
      throw;
    }
  }
  ValueRep(const ValueRep&) = delete;
  ValueRep& operator=(const ValueRep&) = delete;
  ~ValueRep() {
    type->operations->destroy(*type, storage);
    memory().deallocate(storage, 1);
  }

  UntypedTypeRep memory() const noexcept { return {type->size, type->alignment}; }

  TypeHandle type;
  void* storage;
};

template <typename Construct>
ValueHandle makeValueRep(TypeHandle type, Construct construct) {
  return makeOwned<ValueRep>(std::move(type), std::move(construct));
}

/// A value copied from memory that holds one of the type.
ValueHandle copyToValueRep(TypeHandle type, const void* source);

/// The array pointer of a value of an array type; throws std::invalid_argument for any other.
const Ptr<void>& arrayIn(const Value& value);

}  // namespace Orvel::Internal
