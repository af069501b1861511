#include "vtlcmd/translation/entry.h"

extern "C" VTLCMD_EXPORT int vtlcmdExtraExport();

int vtlcmdExtraExport() { return 0; }
