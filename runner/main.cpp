#include <exception>
#include <iostream>

#include "command_line/command_line.h"

int main(int count, char** words) {
  using vtlcmd::ExitCode;
  ExitCode code = ExitCode::runFailed;
  try {
    code = vtlcmd::runCommandLine({words + (count > 0 ? 1 : 0), words + count});
  } catch (const std::exception& error) {
    std::cerr << "vtlcmd: " << error.what() << '\n';
  }
  std::cout.flush();
  if (!std::cout) {
    std::cerr << "vtlcmd: the standard output can't be written\n";
    if (code == ExitCode::success) code = ExitCode::runFailed;
  }
  return static_cast<int>(code);
}
