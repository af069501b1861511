#pragma once

namespace vtlcmd::runner {

/// What the program tells its caller.
enum class ExitCode : int {
  success = 0,
  /// A port without value, a critical message or an error, under --strict a warning too.
  runFailed = 1,
  usage = 2,
  /// A graph or the plug-in can't be loaded.
  notLoaded = 3,
  /// As a shell reports a process that an interrupt ended.
  interrupted = 130,
};

}  // namespace vtlcmd::runner
