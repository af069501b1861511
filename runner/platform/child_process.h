#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vtlcmd::runner {

/// How a process ended.
struct ProcessEnd {
  enum class Kind { exited, tookTooMuchTime, killed, crashed };
  Kind kind;
  /// Of one that exited.
  int exitCode = 0;
  /// What the system calls a crash: "Segmentation fault".
  std::string crash = {};
};

/// A program that runs besides this one. Its standard output comes through a pipe; its other
/// streams lead nowhere. It doesn't get this one's interrupts and doesn't outlive it.
class ChildProcess {
 public:
  /// Starts a program. Words are as `commandLineWords` gives them. Throws std::system_error.
  ChildProcess(const std::filesystem::path& program, const std::vector<std::string>& words);
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  /// Ends the process if it still runs.
  ~ChildProcess();

  /// Some of the child's output, at least one byte of it; 0 when it has ended, nothing when it has
  /// said nothing up to the deadline.
  std::optional<std::size_t> read(std::span<unsigned char> bytes,
                                  std::chrono::steady_clock::time_point deadline);

  /// To be called once, after the output has ended.
  ProcessEnd wait();

 private:
  struct Handles;
  std::unique_ptr<Handles> handles_;
};

/// For a process that is a child: it ends with its parent, leaves no image of its memory behind,
/// and is ended when it has taken so much processor time.
void prepareAsChild(std::chrono::seconds processorTime);

}  // namespace vtlcmd::runner
