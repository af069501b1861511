#include "execution/progress_ticker.h"

#include <chrono>
#include <system_error>

namespace vtlcmd::runner {
namespace {

constexpr std::chrono::milliseconds pause{500};

}  // namespace

ProgressTicker::ProgressTicker(Progress& progress) {
  const auto tick = [this, &progress](const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    while (!stop.stop_requested()) {
      ended_.wait_for(lock, stop, pause, [] { return false; });
      if (!stop.stop_requested()) progress.renew();
    }
  };
  try {
    thread_ = std::jthread(tick);
  } catch (const std::system_error&) {
    // Without a thread the run goes on all the same.
  }
}

}  // namespace vtlcmd::runner
