#pragma once

#include <string>

namespace vtlcmd::runner {

/// The program's version, four numbers with dots.
std::string programVersion();

}  // namespace vtlcmd::runner
