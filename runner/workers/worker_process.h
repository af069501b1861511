#pragma once

#include <cstddef>
#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/child_process.h"
#include "workers/worker_messages.h"

namespace vtlcmd::runner {

/// The word on the command line that makes the program a worker process.
inline constexpr const char* workerCommand = "run-frames";

/// A worker process, as the program sees it.
class WorkerProcess {
 public:
  /// Starts it. `task` is the message of a WorkerTask. Throws std::system_error.
  WorkerProcess(const std::filesystem::path& program, const std::string& task);

  void send(const std::string& order) { process_.send(order); }
  void kill() noexcept { process_.kill(); }

  /// Takes in some of what has come; waits for nothing. How many bytes of news there were; nothing
  /// when the process has ended and all of it was taken in.
  std::optional<std::size_t> receive();

  /// The fields of the next news that was taken in, valid until the next call.
  std::optional<std::string_view> nextNews() { return news_.next(); }

  /// What it said on standard error before the oldest news of that kind that has an end of it.
  std::string takeSaid();

  /// The end of what it said behind that, for people: some lines at most.
  std::string lastWords() const;

  /// To be called once, when it has ended.
  ProcessEnd wait() { return process_.wait(); }

  ChildProcess& process() noexcept { return process_; }

 private:
  void takeErrors();
  void appendSaid(std::string_view text);

  ChildProcess process_;
  MessageBuffer news_;
  /// Of each frame that is behind it; then of the one that it is in.
  std::deque<std::string> said_;
  std::string saidSince_;
};

}  // namespace vtlcmd::runner
