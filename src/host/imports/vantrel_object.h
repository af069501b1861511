#pragma once

#include "host/any.h"
#include "host/imports/api.h"
#include "host/imports/orvel_ptr.h"
#include "host/imports/orvel_string.h"

namespace Vantrel {

/// The graph system's open record: values of any type under text keys. The object library makes
/// objects; its control blocks end them, so there is no virtual destructor.
class Object {
 public:
  /// The value stored under the key, an empty `Any` when there is none.
  virtual vtlcmd::Any propertyByKey(Orvel::StringView key) const = 0;

 protected:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  ~Object() = default;
};

/// A new object without properties.
VANTREL_OBJECT_API Orvel::MutablePtr<Object> createObject();

}  // namespace Vantrel
