#pragma once

#include "orvel_sdk/type_rep.h"
#include "vtlcmd/host/imports/orvel_type_info.h"

namespace Orvel::Internal {

/// The tag of any type whatever: that of the type table where it has one, else one in its manner.
/// Equal types have one tag, which lives until the process ends. Callable from any thread.
const TypeInfo& tagOf(const TypeRep& type);

}  // namespace Orvel::Internal
