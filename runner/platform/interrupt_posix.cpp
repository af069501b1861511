#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <string_view>
#include <unistd.h>

#include "platform/interrupt.h"

namespace vtlcmd::runner {
namespace {

std::atomic<int> firstSignal;
std::atomic<int> signalCount;
std::atomic<bool> pipeBroken;
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

constexpr std::string_view notice =
    "\nvtlcmd: ending after this frame; once more abandons it, and a third time ends at once\n";

extern "C" void onInterrupt(int signal) {
  const int errorBefore = errno;
  const int count = ++signalCount;
  if (count == 1) {
    firstSignal = signal;
    if (::isatty(STDERR_FILENO) != 0)
      static_cast<void>(::write(STDERR_FILENO, notice.data(), notice.size()));
  } else if (count > 2) {
    // The signal is delivered again, and then ends the process, when this function returns.
    static_cast<void>(std::signal(signal, SIG_DFL));
    static_cast<void>(std::raise(signal));
  }
  errno = errorBefore;
}

extern "C" void onBrokenPipe(int) { pipeBroken = true; }

/// A limit on the size of files: writing then fails with an error code.
extern "C" void onFileSize(int) {}

void handle(int signal, void (*handler)(int)) {
  struct sigaction action {};
  if (::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  ::sigemptyset(&action.sa_mask);
  static_cast<void>(::sigaction(signal, &action, nullptr));
}

}  // namespace

void rememberInterrupts() {
  for (const int signal : std::array{SIGINT, SIGTERM, SIGHUP}) handle(signal, onInterrupt);
  rememberFailedWrites();
}

void rememberFailedWrites() {
  // Handlers and not SIG_IGN, which programs that are started here would inherit.
  handle(SIGPIPE, onBrokenPipe);
  handle(SIGXFSZ, onFileSize);
}

void abandonFrame() noexcept { signalCount = 2; }

int interruptSignal() noexcept { return firstSignal; }

bool frameAbandoned() noexcept { return signalCount > 1; }

bool readerGone() noexcept { return pipeBroken; }

}  // namespace vtlcmd::runner
