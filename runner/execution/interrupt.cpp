#include "execution/interrupt.h"

#include <csignal>

namespace vtlcmd {
namespace {

volatile std::sig_atomic_t requested = 0;

extern "C" void onInterrupt(int signal) {
  requested = 1;
  static_cast<void>(std::signal(signal, SIG_DFL));
}

}  // namespace

void rememberInterrupt() { static_cast<void>(std::signal(SIGINT, onInterrupt)); }

bool interruptRequested() noexcept { return requested != 0; }

}  // namespace vtlcmd
