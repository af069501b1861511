#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace vtlcmd::validator {

/// Bytes of its output from which on no more is kept of a process: more than any result has.
inline constexpr std::size_t outputLimit = std::size_t{64} * 1024;

/// How a process that was started came to its end.
struct EndedChild {
  enum class End { exited, crashed, timedOut } end;
  /// What it wrote to its standard output, up to a little more than the limit.
  std::string output;
  /// Of a crash: what the system says of it.
  std::string reason;
};

/// Starts this program again with other arguments, waits for its end and reads its standard output.
/// Its standard error goes nowhere. A process that outlives the limit is ended. A crash is an end
/// other than by exit code 0. Throws std::system_error when nothing can be started.
EndedChild runSelf(const std::vector<std::string>& arguments, std::chrono::milliseconds limit);

}  // namespace vtlcmd::validator
