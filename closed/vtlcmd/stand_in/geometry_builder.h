#pragma once

#include <cstdint>

#include "vtlcmd/host/any.h"
#include "vtlcmd/host/imports/api.h"
#include "vtlcmd/host/imports/orvel_string.h"
#include "vtlcmd/host/imports/vantrel_geometry.h"
#include "vtlcmd/host/imports/vantrel_object.h"

/// How a host gives an object geometry. A property of the same name is replaced and keeps its
/// place. The object is changed, so no other thread may use it during the call.

namespace Vantrel::Geometry {

/// A component property: so many points, faces or whatever the name says.
VANTREL_GEOMETRY_API void setComponentProperty(Object& object, Orvel::StringView name,
                                               std::uint32_t count);

/// A data property of a kind. Its array is kept as it comes; an empty Any gives a property without
/// data.
VANTREL_GEOMETRY_API void setDataProperty(Object& object, Orvel::StringView name, vtlcmd::Any array,
                                          Orvel::StringView kind = sGenericDataGeoProp);

}  // namespace Vantrel::Geometry
