#pragma once

#include "vtlcmd/host/imports/api.h"
#include "vtlcmd/host/imports/orvel_ptr.h"
#include "vtlcmd/host/imports/orvel_string.h"

namespace vtlcmd {
class Any;
}

namespace Vantrel {

/// The graph system's open record: values of any type under text keys. The object library makes
/// objects; its control blocks end them, so there is no virtual destructor. An object is used on
/// one thread at a time while anybody changes it.
class Object {
 public:
  /// A copy of the value stored under the key, an empty `Any` when there is none. The key is read
  /// during the call only. [any thread, may throw]
  virtual vtlcmd::Any propertyByKey(Orvel::StringView key) const = 0;

 protected:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  ~Object() = default;
};

/// A new object without properties, with one use, which is the caller's. [any thread, may throw]
VANTREL_OBJECT_API Orvel::MutablePtr<Object> createObject();

}  // namespace Vantrel
