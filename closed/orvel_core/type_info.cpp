#include "vtlcmd/host/type_tags.h"

namespace Orvel::Internal {

const TypeInfo TypeInfo::s_void = vtlcmd::makeTag("X", 0, 0);

}  // namespace Orvel::Internal
