#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

#include "execution/progress.h"

namespace vtlcmd::runner {

/// Renews the progress of a run twice a second in a thread of its own, so that a long frame can be
/// seen to go on. Where the system gives no thread, progress is renewed between frames only.
class ProgressTicker {
 public:
  /// Progress must outlive this.
  explicit ProgressTicker(Progress& progress);

 private:
  std::mutex mutex_;
  std::condition_variable_any ended_;
  std::jthread thread_;
};

}  // namespace vtlcmd::runner
