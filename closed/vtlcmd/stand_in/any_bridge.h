#pragma once

#include "vtlcmd/host/any.h"
#include "vtlcmd/host/imports/orvel_values.h"

/// The two forms of a value. Arrays and objects are shared, not copied, both ways. Both functions
/// may be called from any thread.

namespace Orvel {

/// The value as an Any. A type that has a tag in the type table comes under that tag, stored as the
/// table says. Every other one, whatever its depth, comes under a tag that nobody registered:
/// element spelling and depth for arrays of table types, a spelling made of the name for structs.
/// The tag lives until the process ends.
ORVEL_SDK_API vtlcmd::Any toAny(const Value& value);

/// The content of an Any as a value of the type. Throws std::invalid_argument, which names the
/// type, when the Any is empty or holds another.
ORVEL_SDK_API Value fromAny(const Type& type, const vtlcmd::Any& any);

}  // namespace Orvel
