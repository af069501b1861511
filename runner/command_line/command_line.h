#pragma once

#include <string>
#include <vector>

#include "execution/exit_code.h"

namespace vtlcmd::runner {

/// Does what the words behind the program's name ask for and says on standard error what went
/// wrong.
ExitCode runCommandLine(const std::vector<std::string>& arguments);

}  // namespace vtlcmd::runner
