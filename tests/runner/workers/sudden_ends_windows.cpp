#include <cstdlib>
#include <windows.h>

#include "workers/sudden_ends.h"

namespace vtlcmd::failing {

// What an exception ends with that nobody handles. Wine would start its debugger for one.
void crash() { TerminateProcess(GetCurrentProcess(), EXCEPTION_ACCESS_VIOLATION); }

void abortProcess() { std::abort(); }

void killProcess() { TerminateProcess(GetCurrentProcess(), 1); }

}  // namespace vtlcmd::failing
