#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>

#include "workers/worker_messages.h"

namespace vtlcmd::runner {

/// What a worker process is told on its standard input. It is read in a thread of its own, so that
/// a frame can be abandoned; when it ends, the program has ended, and so does this process, at
/// once.
class WorkerInput {
 public:
  /// Waits for the task. Throws MessageError.
  WorkerInput();
  WorkerInput(const WorkerInput&) = delete;
  WorkerInput& operator=(const WorkerInput&) = delete;

  const WorkerTask& task() const noexcept { return task_; }

  /// Waits for the place of a frame to run; nothing when the worker is to stop.
  std::optional<std::size_t> nextPlace();

 private:
  void listen();
  void obey(std::string_view order);

  WorkerTask task_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<std::size_t> places_;
  bool stops_ = false;
};

}  // namespace vtlcmd::runner
