#pragma once

#include "vtlcmd/host/any.h"
#include "vtlcmd/host/imports/orvel_ptr.h"
#include "vtlcmd/host/imports/vantrel_object.h"

/// How a property and a prototype say what they are.

namespace Vantrel::Geometry {

/// The key of the prototype, in properties; in prototypes that of the more general one.
inline constexpr Orvel::StringView prototypeKey{"prototype", 9};

/// The object stored under a key, null when there is none or something else.
Orvel::Ptr<Object> objectUnder(const Object& owner, Orvel::StringView key);

/// Whether the property is of the prototype or of one that the prototype covers.
bool isOfPrototype(const Object& property, const Object& prototype);

}  // namespace Vantrel::Geometry
