#include <cstdlib>
#include <windows.h>

#include "workers/sudden_ends.h"

namespace vtlcmd::failing {

void crash() { RaiseException(EXCEPTION_ACCESS_VIOLATION, EXCEPTION_NONCONTINUABLE, 0, nullptr); }

void abortProcess() { std::abort(); }

void killProcess() { TerminateProcess(GetCurrentProcess(), 1); }

}  // namespace vtlcmd::failing
