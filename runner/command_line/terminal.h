#pragma once

#include <optional>
#include <string>

#include "execution/message_printer.h"
#include "execution/progress.h"

namespace vtlcmd::runner {

/// Whether problems are printed in colour under `--color auto`, `always` or `never`. Automatic
/// means: on a terminal, unless the environment has a NO_COLOR that isn't empty.
bool wantsColor(const std::string& choice);

TextSink standardOutput();
TextSink standardErrors();

/// How progress is told. `wanted` is what a user asks for; nothing means: on a terminal.
ProgressForm progressForm(std::optional<bool> wanted);

}  // namespace vtlcmd::runner
