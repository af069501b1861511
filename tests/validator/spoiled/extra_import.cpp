#include "vtlcmd/stand_in/type_factory.h"

/// Kept by the linker, as it may have effects.
static const auto names = Orvel::knownTypeNames();
