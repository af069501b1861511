#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "execution/frame_list.h"
#include "frames/frame_collector.h"
#include "frames/frame_queue.h"
#include "workers/chunk_size.h"
#include "workers/worker_death.h"
#include "workers/worker_process.h"

namespace vtlcmd::runner {

/// No process gets so far that it could run a frame.
class WorkerError : public std::runtime_error {
 public:
  WorkerError(const std::string& text, Failure failure)
      : std::runtime_error("the frames' processes can't be started: " + text), failure_(failure) {}

  Failure failure() const noexcept { return failure_; }

 private:
  Failure failure_;
};

/// Runs the frames of a queue in processes of this program. A process that ends in a frame costs
/// that frame, and another one takes its place.
class WorkerPool {
 public:
  struct Settings {
    /// This program.
    std::filesystem::path program;
    WorkerTask task;
    std::optional<std::chrono::milliseconds> timeout;
    unsigned retries = 0;
    /// The frames go to a journal.
    bool isRecorded = false;
  };

  /// All that is handed over must outlive this.
  WorkerPool(Settings settings, const FrameList& frames, FrameQueue& queue,
             FrameCollector& collector);

  /// An interrupt ends it. Throws WorkerError, and what the collector throws; no process is left
  /// behind then either.
  void run();

 private:
  using Clock = std::chrono::steady_clock;

  struct Worker {
    Worker(unsigned workerNumber, const std::filesystem::path& program, const std::string& task)
        : number(workerNumber), process(program, task) {}

    /// From 1.
    unsigned number;
    WorkerProcess process;
    bool isReady = false;
    bool isStopped = false;
    bool isOutOfTime = false;
    /// What came from it was left waiting.
    bool isPaused = false;
    /// The frames that it has in hand; it runs the first one since then.
    std::deque<std::size_t> places;
    Clock::time_point since;
    /// How many it was given last.
    std::size_t chunk = 0;
  };

  bool isDone() const;
  void startMissing();
  void start(unsigned number);
  void passOnInterrupts();
  void giveFrames();
  void give(Worker& worker, const std::vector<std::size_t>& places);
  void waitForNews();
  bool isHeard(const Worker& worker) const;
  void receive(Worker& worker);
  void handleNews(Worker& worker, std::string_view news);
  void beginFrame(Worker& worker);
  void finishFrame(Worker& worker, FinishedFrame frame);
  bool runAgain(Worker& worker, const FinishedFrame& frame);
  bool isOutOfTime(const Worker& worker) const;
  void endThoseOutOfTime();
  void bury(Worker& worker);
  void noteFailedStart(const std::string& text, Failure failure);
  void collect(FinishedFrame frame);
  void dismiss();

  Settings settings_;
  const FrameList& frames_;
  FrameQueue& queue_;
  FrameCollector& collector_;
  ChunkSize chunkSize_;
  std::string task_;
  /// By number; null where none runs.
  std::vector<std::unique_ptr<Worker>> workers_;
  /// Of frames that failed before.
  std::map<std::size_t, unsigned> attempts_;
  /// One after the other.
  unsigned failedStarts_ = 0;
  bool goesOn_ = true;
  bool hasStopped_ = false;
  bool hasAbandoned_ = false;
};

}  // namespace vtlcmd::runner
