#include "command_line/terminal.h"

#include <cstdlib>
#include <iostream>
#include <string_view>

#include "platform/process.h"

namespace vtlcmd::runner {
namespace {

/// Whether standard error is a terminal that does what control sequences say.
bool errorsShowControls() {
  // Nothing in this program writes to the environment.
  const char* kind = std::getenv("TERM");  // NOLINT(concurrency-mt-unsafe)
  return errorsGoToTerminal() && (kind == nullptr || std::string_view(kind) != "dumb");
}

}  // namespace

bool wantsColor(const std::string& choice) {
  if (choice != "auto") return choice == "always";
  // Nothing in this program writes to the environment.
  const char* noColor = std::getenv("NO_COLOR");  // NOLINT(concurrency-mt-unsafe)
  return errorsShowControls() && (noColor == nullptr || *noColor == '\0');
}

TextSink standardOutput() { return {std::cout, outputGoesToTerminal()}; }
TextSink standardErrors() { return {std::cerr, errorsGoToTerminal()}; }

ProgressForm progressForm(std::optional<bool> wanted) {
  const bool onTerminal = errorsShowControls();
  if (!wanted.value_or(onTerminal)) return ProgressForm::none;
  return onTerminal ? ProgressForm::terminalLine : ProgressForm::plainLines;
}

}  // namespace vtlcmd::runner
