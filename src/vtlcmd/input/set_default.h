#pragma once

#include "vtlcmd/host/imports/vantrel_object.h"
#include "vtlcmd/host/store.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd {

/// Stores the type's zero: 0, false, the empty string, all components 0, for an object a new one.
template <Registered T>
void setDefault(Any& value) {
  if constexpr (std::same_as<T, ObjectPtr>) {
    store(value, makeAny(ObjectPtr(Vantrel::createObject())));
  } else {
    store(value, makeAny(T{}));
  }
}

}  // namespace vtlcmd
