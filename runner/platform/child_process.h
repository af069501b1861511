#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vtlcmd::runner {

/// How a process ended.
struct ProcessEnd {
  enum class Kind { exited, tookTooMuchTime, killed, crashed };
  Kind kind;
  /// Of one that exited.
  int exitCode = 0;
  /// What the system calls the signal or exception of one that crashed or, where there are signals,
  /// was killed: "Segmentation fault".
  std::string signal = {};
};

/// The exit code of a process of this program for which its memory was too small.
inline constexpr int outOfMemoryExit = 99;

/// Which streams of a child lead to its parent; the others lead nowhere.
enum class ChildStreams { output, all };

/// What a child says.
enum class ChildOutput { output, errors };

/// A program that runs besides this one. It doesn't get this one's interrupts and doesn't outlive
/// it.
class ChildProcess {
 public:
  /// Starts a program. Words are as `commandLineWords` gives them. Throws std::system_error.
  ChildProcess(const std::filesystem::path& program, const std::vector<std::string>& words,
               ChildStreams streams = ChildStreams::output);
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  /// Ends the process if it still runs.
  ~ChildProcess();

  using Time = std::chrono::steady_clock::time_point;
  /// The deadline of who takes what is there already.
  static constexpr Time now = Time::min();

  /// Some of the child's output, at least one byte of it; 0 when it has ended, which is told once;
  /// nothing when it has said nothing up to the deadline.
  std::optional<std::size_t> read(std::span<unsigned char> bytes, Time deadline,
                                  ChildOutput output = ChildOutput::output);

  /// Returns when one of the children has said something or ended its output, at the deadline, or
  /// when this process was interrupted. All streams of the children lead here.
  static void waitForAny(std::span<ChildProcess* const> children, Time deadline);

  /// Gives the child all of a text for its standard input, which leads here. Waits until the child
  /// takes it; what a child doesn't take that has ended is lost.
  void send(std::string_view text);

  /// Ends the child, which is still to be waited for.
  void kill() noexcept;

  /// To be called once, after the output has ended.
  ProcessEnd wait();

 private:
  struct Handles;
  std::unique_ptr<Handles> handles_;
};

/// For a process that is a child: it ends with its parent and leaves no image of its memory behind.
void prepareAsChild();

/// Has this process ended when it has taken so much processor time.
void limitProcessorTime(std::chrono::seconds time);

}  // namespace vtlcmd::runner
