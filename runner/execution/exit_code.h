#pragma once

#include "execution/failure.h"

namespace vtlcmd::runner {

/// What the program tells its caller.
enum class ExitCode : int {
  success = 0,
  /// A port without value, an output without report, a critical message or an error, under --strict
  /// a warning too; or output that can't be written.
  runFailed = 1,
  usage = 2,
  /// A graph, the plug-in or a journal can't be loaded.
  notLoaded = 3,
  /// Every failure is of a kind that another attempt may not have. EX_TEMPFAIL of <sysexits.h>.
  tryAgain = 75,
  /// As a shell reports a process that the signal of a closed pipe ended.
  readerGone = 141,
};

/// Of a run whose frames failed in no worse way.
constexpr ExitCode exitCodeOf(Failure worst) noexcept {
  switch (worst) {
    case Failure::none:
      return ExitCode::success;
    case Failure::transient:
      return ExitCode::tryAgain;
    case Failure::permanent:
      break;
  }
  return ExitCode::runFailed;
}

/// As a shell reports a process that the signal ended.
constexpr ExitCode interruptedBy(int signal) noexcept {
  return static_cast<ExitCode>(128 + signal);
}

}  // namespace vtlcmd::runner
