#include <csignal>

#include "workers/sudden_ends.h"

namespace vtlcmd::failing {
namespace {

void raiseDefault(int signal) {
  static_cast<void>(std::signal(signal, SIG_DFL));
  static_cast<void>(std::raise(signal));
}

}  // namespace

void crash() { raiseDefault(SIGSEGV); }

void abortProcess() { raiseDefault(SIGABRT); }

void killProcess() { raiseDefault(SIGKILL); }

}  // namespace vtlcmd::failing
