#pragma once

#include <string>

namespace vtlcmd::runner {

/// The program's version, the facts of its build and the optional parts it has, a line each, the
/// last one without a line end.
std::string versionText();

}  // namespace vtlcmd::runner
