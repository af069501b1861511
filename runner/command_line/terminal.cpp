#include "command_line/terminal.h"

#include <cstdlib>

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace vtlcmd {

bool errorsGoToTerminal() {
#if defined(_WIN32)
  return _isatty(2) != 0;
#else
  return ::isatty(STDERR_FILENO) != 0;
#endif
}

bool wantsColor(const std::string& choice) {
  if (choice != "auto") return choice == "always";
  // Nothing in this program writes to the environment.
  const char* noColor = std::getenv("NO_COLOR");  // NOLINT(concurrency-mt-unsafe)
  return errorsGoToTerminal() && (noColor == nullptr || *noColor == '\0');
}

}  // namespace vtlcmd
