#include "workers/worker_pool.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "frames/own_frames.h"
#include "journal/journal_lines.h"
#include "platform/interrupt.h"
#include "text/shortest_text.h"

namespace vtlcmd::runner {
namespace {

/// How long an interrupt waits to be noticed.
constexpr std::chrono::milliseconds workerPollTime{100};
/// How long processes have to end by themselves that have nothing more to do.
constexpr std::chrono::seconds partingTime{5};
constexpr unsigned mostFailedStarts = 3;

}  // namespace

WorkerPool::WorkerPool(Settings settings, const FrameList& frames, FrameQueue& queue,
                       FrameCollector& collector)
    : settings_(std::move(settings)),
      frames_(frames),
      queue_(queue),
      collector_(collector),
      chunkSize_(settings_.task.workers),
      task_(messageOf(settings_.task)),
      workers_(settings_.task.workers) {}

void WorkerPool::run() {
  while (goesOn_ && !isDone()) {
    passOnInterrupts();
    startMissing();
    giveFrames();
    waitForNews();
    for (std::unique_ptr<Worker>& worker : workers_) {
      if (goesOn_ && worker && isHeard(*worker)) receive(*worker);
    }
    endThoseOutOfTime();
  }
  if (goesOn_) dismiss();
}

bool WorkerPool::isDone() const {
  if (!hasStopped_ && queue_.left() > 0) return false;
  return std::all_of(workers_.begin(), workers_.end(), [this](const auto& worker) {
    return !worker || (!hasStopped_ && worker->places.empty());
  });
}

void WorkerPool::startMissing() {
  // The frames that those run that wait for some.
  std::size_t wanted = hasStopped_ ? 0 : queue_.left();
  for (std::size_t i = 0; i < workers_.size() && wanted > 0; ++i) {
    if (!workers_[i]) start(static_cast<unsigned>(i + 1));
    if (workers_[i] && workers_[i]->places.empty()) --wanted;
  }
}

void WorkerPool::start(unsigned number) {
  try {
    workers_[number - 1] = std::make_unique<Worker>(number, settings_.program, task_);
  } catch (const std::system_error& error) {
    // Others may do its work.
    if (std::none_of(workers_.begin(), workers_.end(),
                     [](const auto& one) { return one != nullptr; }))
      throw WorkerError(error.code().message(), Failure::transient);
  }
}

void WorkerPool::passOnInterrupts() {
  const auto send = [this](WorkerOrder order) {
    for (const std::unique_ptr<Worker>& worker : workers_) {
      if (worker) worker->process.send(messageOf(order));
    }
  };
  if (interruptSignal() != 0 && !std::exchange(hasStopped_, true)) send(WorkerOrder::stop);
  if (frameAbandoned() && !std::exchange(hasAbandoned_, true)) send(WorkerOrder::abandon);
}

void WorkerPool::giveFrames() {
  if (hasStopped_) return;
  for (const std::unique_ptr<Worker>& worker : workers_) {
    if (!worker || worker->isOutOfTime || !chunkSize_.isScarce(worker->places.size())) continue;
    std::vector<std::size_t> places;
    for (std::size_t left = chunkSize_.next(worker->chunk, queue_.left()); left > 0; --left) {
      const std::optional<std::size_t> place = queue_.take();
      if (!place) break;
      places.push_back(*place);
    }
    if (places.empty()) return;
    worker->chunk = places.size();
    give(*worker, places);
  }
}

void WorkerPool::give(Worker& worker, const std::vector<std::size_t>& places) {
  const bool begins = worker.places.empty();
  worker.places.insert(worker.places.end(), places.begin(), places.end());
  worker.process.send(runMessage(places));
  if (begins && worker.isReady) beginFrame(worker);
}

void WorkerPool::waitForNews() {
  Clock::time_point deadline = Clock::now() + workerPollTime;
  std::vector<ChildProcess*> heard;
  for (const std::unique_ptr<Worker>& worker : workers_) {
    if (!worker) continue;
    // What it says waits in its pipe, and so does it in the end, and its time doesn't count.
    const bool wasPaused = std::exchange(worker->isPaused, !isHeard(*worker));
    if (worker->isPaused) continue;
    if (wasPaused) worker->since = Clock::now();
    heard.push_back(&worker->process.process());
    if (settings_.timeout && worker->isReady && !worker->places.empty())
      deadline = std::min(deadline, worker->since + *settings_.timeout);
  }
  ChildProcess::waitForAny(heard, deadline);
}

/// When too much waits for its turn, only the one is heard that has the frame whose turn it is.
bool WorkerPool::isHeard(const Worker& worker) const {
  if (!collector_.isFull()) return true;
  const auto hasAwaited = [this](const Worker& one) {
    return std::find(one.places.begin(), one.places.end(), collector_.awaited()) !=
           one.places.end();
  };
  return hasAwaited(worker) ||
         std::none_of(workers_.begin(), workers_.end(),
                      [&](const auto& other) { return other && hasAwaited(*other); });
}

void WorkerPool::receive(Worker& worker) {
  const std::optional<std::size_t> received = worker.process.receive();
  // It tells of a frame, so the frame has ended.
  if (received.value_or(0) > 0) worker.since = Clock::now();
  try {
    while (const std::optional<std::string_view> news = worker.process.nextNews()) {
      handleNews(worker, *news);
      if (!goesOn_) return;
    }
  } catch (const MessageError&) {
    // Nothing that it says can be trusted any more; its end will be told of.
    worker.process.kill();
  }
  if (!received) bury(worker);
}

void WorkerPool::handleNews(Worker& worker, std::string_view news) {
  FieldReader fields(news);
  switch (static_cast<WorkerNews>(fields.number())) {
    case WorkerNews::ready:
      // The program itself has said the same while it loaded.
      worker.process.takeSaid();
      worker.isReady = true;
      failedStarts_ = 0;
      if (!worker.places.empty()) beginFrame(worker);
      return;
    case WorkerNews::notLoaded:
      throw WorkerError(fields.text(), Failure::permanent);
    case WorkerNews::finished:
      return finishFrame(worker, frameIn(fields));
    case WorkerNews::stopped:
      worker.isStopped = true;
      return;
  }
  throw MessageError();
}

void WorkerPool::beginFrame(Worker& worker) {
  worker.since = Clock::now();
  collector_.begin(worker.places.front(), worker.number);
}

void WorkerPool::finishFrame(Worker& worker, FinishedFrame frame) {
  if (worker.places.empty() || worker.places.front() != frame.place) throw MessageError();
  worker.places.pop_front();
  worker.since = Clock::now();
  frame.said = worker.process.takeSaid();
  frame.outcome.worker = worker.number;
  chunkSize_.addMeasurement(frame.outcome.seconds);
  if (runAgain(worker, frame)) return;
  collect(std::move(frame));
  if (goesOn_ && !worker.places.empty() && !hasStopped_) beginFrame(worker);
}

/// The worker keeps the frame, so that it is heard when all others wait for that.
bool WorkerPool::runAgain(Worker& worker, const FinishedFrame& frame) {
  if (!mayRunAgain(frame.outcome, attempts_[frame.place] + 1, settings_.retries)) return false;
  ++attempts_[frame.place];
  const bool begins = !worker.places.empty();
  give(worker, {frame.place});
  if (begins) beginFrame(worker);
  return true;
}

void WorkerPool::collect(FinishedFrame frame) {
  const auto before = attempts_.find(frame.place);
  if (before != attempts_.end()) {
    frame.outcome.attempts = before->second + 1;
    attempts_.erase(before);
  }
  goesOn_ = collector_.take(std::move(frame));
}

bool WorkerPool::isOutOfTime(const Worker& worker) const {
  return worker.isReady && !worker.isPaused && !worker.places.empty() && !worker.isOutOfTime &&
         Clock::now() - worker.since >= *settings_.timeout;
}

void WorkerPool::endThoseOutOfTime() {
  if (!settings_.timeout) return;
  for (const std::unique_ptr<Worker>& worker : workers_) {
    if (!goesOn_) return;
    if (!worker || !isOutOfTime(*worker)) continue;
    // It may have said something while frames of others were printed.
    receive(*worker);
    if (!worker || !isOutOfTime(*worker)) continue;
    worker->isOutOfTime = true;
    worker->process.kill();
  }
}

/// A worker that has ended.
void WorkerPool::bury(Worker& worker) {
  const std::unique_ptr<Worker> dead = std::move(workers_[worker.number - 1]);
  const WorkerDeath death = deathFrom(dead->process.wait());
  if (dead->isStopped) return;
  const std::string lastWords = dead->process.lastWords();
  if (!dead->isReady) {
    for (const std::size_t place : dead->places) queue_.putBack(place);
    return noteFailedStart("a process " + death.how + (lastWords.empty() ? "" : "\n" + lastWords),
                           death.failure);
  }
  if (dead->places.empty()) return;
  const std::size_t place = dead->places.front();
  dead->places.pop_front();
  for (const std::size_t other : dead->places) queue_.putBack(other);

  const std::string frameText = shortestText(frames_[place]);
  FinishedFrame frame = dead->isOutOfTime ? frameOutOfTime(*settings_.timeout, frameText, lastWords)
                                          : frameOfDeath(death, frameText, lastWords);
  frame.place = place;
  if (mayRunAgain(frame.outcome, attempts_[place] + 1, settings_.retries)) {
    ++attempts_[place];
    return queue_.putBack(place);
  }
  FrameOutcome& outcome = frame.outcome;
  outcome.worker = dead->number;
  const Clock::duration time = Clock::now() - dead->since;
  outcome.seconds = std::chrono::duration<double>(time).count();
  outcome.started = std::chrono::system_clock::now() -
                    std::chrono::duration_cast<std::chrono::system_clock::duration>(time);
  if (settings_.isRecorded) {
    frame.content = contentOfDeath(frame, static_cast<std::uint32_t>(frames_.placeInWhole(place)));
  }
  collect(std::move(frame));
}

void WorkerPool::noteFailedStart(const std::string& text, Failure failure) {
  if (++failedStarts_ == mostFailedStarts && !hasStopped_) throw WorkerError(text, failure);
}

/// Lets the workers end by themselves, with what their plug-ins do then.
void WorkerPool::dismiss() {
  const Clock::time_point deadline = Clock::now() + partingTime;
  for (const std::unique_ptr<Worker>& worker : workers_) {
    if (worker) worker->process.send(messageOf(WorkerOrder::stop));
  }
  for (std::unique_ptr<Worker>& worker : workers_) {
    while (worker && Clock::now() < deadline) {
      ChildProcess* const process = &worker->process.process();
      ChildProcess::waitForAny({&process, 1}, deadline);
      if (!worker->process.receive()) worker = nullptr;
    }
  }
}

}  // namespace vtlcmd::runner
