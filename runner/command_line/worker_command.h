#pragma once

namespace vtlcmd::runner {

/// Is a worker process, which WorkerProcess has started: runs the frames that it is told to, and
/// ends this process.
[[noreturn]] void serveFrames();

}  // namespace vtlcmd::runner
