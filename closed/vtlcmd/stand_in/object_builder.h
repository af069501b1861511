#pragma once

#include "vtlcmd/host/any.h"
#include "vtlcmd/host/imports/api.h"
#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_ptr.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/imports/vantrel_object.h"

/// How a host fills objects. They work on objects of `createObject` and `copyObject`, and throw
/// std::invalid_argument for any other. An object may be read from several threads as long as
/// nobody sets a property of it.

namespace Vantrel {

/// Stores a value under a key. A key that the object has already keeps its place.
VANTREL_OBJECT_API void setProperty(Object& object, Orvel::StringView key, vtlcmd::Any value);

/// The keys in order of insertion.
VANTREL_OBJECT_API Orvel::Array<Orvel::String> propertyKeys(const Object& object);

/// A new object with the same properties. What the properties share they go on sharing.
VANTREL_OBJECT_API Orvel::MutablePtr<Object> copyObject(const Object& object);

}  // namespace Vantrel
