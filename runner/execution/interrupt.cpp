#include "execution/interrupt.h"

#include <atomic>
#include <csignal>

namespace vtlcmd::runner {
namespace {

// Set by a signal handler, which runs on a thread of its own on some platforms.
std::atomic<bool> requested;
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void onInterrupt(int signal) {
  requested = true;
  static_cast<void>(std::signal(signal, SIG_DFL));
}

}  // namespace

void rememberInterrupt() { static_cast<void>(std::signal(SIGINT, onInterrupt)); }

bool interruptRequested() noexcept { return requested; }

}  // namespace vtlcmd::runner
