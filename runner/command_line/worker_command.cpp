#include "command_line/worker_command.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <new>
#include <string>

#include "command_line/graph_run.h"
#include "frames/own_frames.h"
#include "platform/child_process.h"
#include "platform/interrupt.h"
#include "platform/memory_end.h"
#include "platform/process.h"
#include "workers/worker_input.h"

namespace vtlcmd::runner {
namespace {

/// Where the program hears of this process.
class WorkerOutput {
 public:
  /// Ends before what was said on standard error, by whomever, so that it can be told apart.
  void send(const std::string& message) {
    std::cout.flush();
    static_cast<void>(std::fflush(stdout));
    std::cerr.put(endOfSaid).flush();
    // The program has ended when it doesn't take it.
    if (std::fwrite(message.data(), 1, message.size(), stream_) != message.size() ||
        std::fflush(stream_) != 0)
      std::_Exit(1);
  }

 private:
  std::FILE* stream_ = takeStandardOutput();
};

/// What nobody will print needn't be sent.
void removeUnprinted(std::vector<LogMessage>& messages, std::uint32_t verbosity) {
  std::erase_if(messages, [verbosity](const LogMessage& message) {
    return !VtlCmdLogger::levelAdmits(static_cast<std::int16_t>(verbosity),
                                      std::uint32_t{message.level} - 1);
  });
}

void runFrames(const LoadedRun& run, std::uint32_t printLimit, WorkerInput& input,
               WorkerOutput& output) {
  VtlCmdLogger logger(printLimit);
  Session session(run.graph, run.plugIn->translation(), run.settings, logger);
  output.send(messageOf(WorkerNews::ready));
  while (const std::optional<std::size_t> place = input.nextPlace()) {
    FinishedFrame frame = runFrame(session, *place, logger, run.settings.recordFrames);
    removeUnprinted(frame.messages, run.settings.verbosity);
    output.send(messageOf(frame));
  }
}

void serve() {
  WorkerOutput output;
  // Its thread uses it until the process ends.
  static WorkerInput input;
  std::optional<LoadedRun> run;
  std::uint32_t printLimit = 0;
  try {
    const RunOptions options = runOptionsFrom(input.task().words);
    options.read.apply(input.task().workers);
    printLimit = options.report.printLimit();
    run = loadRunInWorker(options, input.task());
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    return output.send(messageOf(WorkerNews::notLoaded, error.what()));
  }
  runFrames(*run, printLimit, input, output);
  // The plug-in ends before that is told.
  run.reset();
  output.send(messageOf(WorkerNews::stopped));
}

}  // namespace

void serveFrames() {
  prepareAsChild();
  rememberFailedWrites();
  endWithoutMemoryBy([] { std::_Exit(outOfMemoryExit); });
  try {
    serve();
  } catch (const std::bad_alloc&) {
    std::_Exit(outOfMemoryExit);
  } catch (const std::exception& error) {
    std::cerr << "vtlcmd: " << error.what() << std::endl;
    std::_Exit(1);
  }
  // Nothing waits for the thread that reads the input.
  std::_Exit(0);
}

}  // namespace vtlcmd::runner
