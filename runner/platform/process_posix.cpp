#include <system_error>
#include <unistd.h>

#include "platform/process.h"

namespace vtlcmd::runner {

std::vector<std::string> commandLineWords(int count, char** words) {
  return {words + (count > 0 ? 1 : 0), words + count};
}

void prepareStandardStreams() {}

bool outputGoesToTerminal() { return ::isatty(STDOUT_FILENO) != 0; }

bool errorsGoToTerminal() { return ::isatty(STDERR_FILENO) != 0; }

std::filesystem::path ownFile() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error);
}

}  // namespace vtlcmd::runner
