#pragma once

#include "vtlcmd/host/any.h"

namespace vtlcmd {

/// Stores a new value in a result, whose old value ends last. A copy that fails on its way into
/// `newValue` leaves the result as it was.
inline void store(Any& result, Any newValue) noexcept { swap(result, newValue); }

}  // namespace vtlcmd
