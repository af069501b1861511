#pragma once

#include <array>

#include "orvel_sdk/type_rep.h"

namespace Orvel::Internal {

/// The one description of each stored type, in the order of `storedTypes`.
const std::array<TypeHandle, storedTypeCount>& storedTypeReps();

}  // namespace Orvel::Internal
