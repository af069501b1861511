#include <atomic>
#include <csignal>
#include <string_view>
#include <windows.h>

#include "platform/interrupt.h"

namespace vtlcmd::runner {
namespace {

// Events come on a thread of their own.
std::atomic<int> firstSignal;
std::atomic<int> eventCount;

/// As POSIX numbers what is like the loss of a terminal.
constexpr int hangUp = 1;

constexpr std::string_view notice =
    "\r\nvtlcmd: ending after this frame; once more abandons it, and a third time ends at once\r\n";

BOOL WINAPI onEvent(DWORD event) {
  const int count = ++eventCount;
  const bool isKey = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
  if (count == 1) {
    firstSignal = isKey ? SIGINT : hangUp;
    DWORD mode = 0;
    DWORD written = 0;
    HANDLE errors = GetStdHandle(STD_ERROR_HANDLE);
    if (GetConsoleMode(errors, &mode) != 0)
      WriteFile(errors, notice.data(), static_cast<DWORD>(notice.size()), &written, nullptr);
  }
  // When a console closes or its user leaves, the process ends with the return from here.
  if (!isKey) Sleep(INFINITE);
  return count > 2 ? FALSE : TRUE;
}

}  // namespace

void rememberInterrupts() { SetConsoleCtrlHandler(onEvent, TRUE); }

// The platform has no signals for it.
void rememberFailedWrites() {}

void abandonFrame() noexcept { eventCount = 2; }

int interruptSignal() noexcept { return firstSignal; }

bool frameAbandoned() noexcept { return eventCount > 1; }

// The platform has no signal for it: writing fails, and that is told.
bool readerGone() noexcept { return false; }

}  // namespace vtlcmd::runner
