#pragma once

#include <cstdint>

#include "vtlcmd/host/imports/api.h"
#include "vtlcmd/host/imports/orvel_array.h"
#include "vtlcmd/host/imports/orvel_ptr.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/imports/vantrel_object.h"

/// Views are read during the call only, and objects aren't changed. All are [any thread, may throw]
/// as long as nobody changes the object meanwhile.

namespace Vantrel::Geometry {

/// The prototype that all component geometry properties share; never null.
VANTREL_GEOMETRY_API Orvel::Ptr<Object> getComponentGeoPropPrototype();

/// The prototype of data geometry properties of a kind; never null.
VANTREL_GEOMETRY_API Orvel::Ptr<Object> getDataGeoPropPrototype(Orvel::StringView kind);

/// The names of the object's properties that match the prototype, in the library's order. The array
/// is the caller's.
VANTREL_GEOMETRY_API Orvel::Array<Orvel::String> getGeoPropNamesByPrototype(
    const Object& object, const Object& prototype);

/// The number of elements of a component property, one of the names of that prototype.
VANTREL_GEOMETRY_API std::uint32_t getElementCount(const Object& object, Orvel::StringView name);

/// A data property, itself an object, one of the names of that prototype; one more use of it.
VANTREL_GEOMETRY_API Orvel::Ptr<Object> getDataGeoProperty(const Object& object,
                                                           Orvel::StringView name);

/// The kind name that covers all data properties. Constant while the library is loaded.
VANTREL_GEOMETRY_API extern const Orvel::String sGenericDataGeoProp;
/// The key under which a data property keeps its array. Constant while the library is loaded.
VANTREL_GEOMETRY_API extern const Orvel::String sData;

}  // namespace Vantrel::Geometry
