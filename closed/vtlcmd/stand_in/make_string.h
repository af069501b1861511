#pragma once

#include "vtlcmd/host/imports/api.h"
#include "vtlcmd/host/imports/orvel_string.h"

namespace Orvel {

/// A string of a text read by length, NUL bytes included. Callable from any thread; throws
/// std::bad_alloc.
ORVEL_CORE_API String makeString(StringView text);

}  // namespace Orvel
