#pragma once

#include <string>

namespace vtlcmd::runner {

/// Whether problems are printed in colour under `--color auto`, `always` or `never`. Automatic
/// means: on a terminal, unless the environment has a NO_COLOR that isn't empty.
bool wantsColor(const std::string& choice);

}  // namespace vtlcmd::runner
