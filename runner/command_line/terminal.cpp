#include "command_line/terminal.h"

#include <cstdlib>

#include "platform/process.h"

namespace vtlcmd::runner {

bool wantsColor(const std::string& choice) {
  if (choice != "auto") return choice == "always";
  // Nothing in this program writes to the environment.
  const char* noColor = std::getenv("NO_COLOR");  // NOLINT(concurrency-mt-unsafe)
  return errorsGoToTerminal() && (noColor == nullptr || *noColor == '\0');
}

}  // namespace vtlcmd::runner
