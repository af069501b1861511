#pragma once

#include <cstdint>

#include "host/imports/api.h"
#include "host/imports/orvel_array.h"
#include "host/imports/orvel_ptr.h"
#include "host/imports/orvel_string.h"
#include "host/imports/vantrel_object.h"

namespace Vantrel::Geometry {

/// The prototype that all component geometry properties share.
VANTREL_GEOMETRY_API Orvel::Ptr<Object> getComponentGeoPropPrototype();

/// The prototype of data geometry properties of a kind.
VANTREL_GEOMETRY_API Orvel::Ptr<Object> getDataGeoPropPrototype(Orvel::StringView kind);

/// The names of the object's properties that match the prototype, in the library's order.
VANTREL_GEOMETRY_API Orvel::Array<Orvel::String> getGeoPropNamesByPrototype(
    const Object& object, const Object& prototype);

/// The number of elements of a component property.
VANTREL_GEOMETRY_API std::uint32_t getElementCount(const Object& object, Orvel::StringView name);

/// A data property, itself an object.
VANTREL_GEOMETRY_API Orvel::Ptr<Object> getDataGeoProperty(const Object& object,
                                                           Orvel::StringView name);

/// The kind name that covers all data properties.
VANTREL_GEOMETRY_API extern const Orvel::String sGenericDataGeoProp;
/// The key under which a data property keeps its array.
VANTREL_GEOMETRY_API extern const Orvel::String sData;

}  // namespace Vantrel::Geometry
