#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>

#include "command_line/command_line.h"
#include "platform/interrupt.h"
#include "platform/memory_end.h"
#include "platform/process.h"
#include "text/control_characters.h"

namespace {

constexpr const char* noMemory = "vtlcmd: there isn't enough memory\n";

/// What has been printed isn't lost.
[[noreturn]] void endWithoutMemory() {
  static_cast<void>(std::fflush(stdout));
  static_cast<void>(std::fputs(noMemory, stderr));
  std::_Exit(static_cast<int>(vtlcmd::runner::ExitCode::tryAgain));
}

}  // namespace

int main(int count, char** words) {
  using vtlcmd::runner::ExitCode;
  ExitCode code = ExitCode::runFailed;
  vtlcmd::runner::endWithoutMemoryBy(endWithoutMemory);
  try {
    vtlcmd::runner::keepFreedMemory();
    vtlcmd::runner::prepareStandardStreams();
    code = vtlcmd::runner::runCommandLine(vtlcmd::runner::commandLineWords(count, words));
  } catch (const std::bad_alloc&) {
    std::cerr << noMemory;
    code = ExitCode::tryAgain;
  } catch (const std::exception& error) {
    std::cerr << "vtlcmd: " << vtlcmd::runner::withoutControls(error.what()) << '\n';
  }
  std::cout.flush();
  if (!std::cout) {
    if (vtlcmd::runner::readerGone()) return static_cast<int>(ExitCode::readerGone);
    std::cerr << "vtlcmd: the standard output can't be written\n";
    if (code == ExitCode::success) code = ExitCode::runFailed;
  }
  return static_cast<int>(code);
}
