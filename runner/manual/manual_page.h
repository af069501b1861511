#pragma once

#include <string>

namespace CLI {
class App;
}

namespace vtlcmd::runner {

/// The manual page of the program or of one of its commands, from what its help says, in the
/// page language of `man`. `program` is the command line that `command` belongs to, or the same;
/// `version` stands at the foot.
std::string manualPage(const CLI::App& program, const CLI::App& command,
                       const std::string& version);

/// The manual page on the form of graph files.
std::string graphManualPage(const CLI::App& program, const std::string& version);

/// The page's name: "vtlcmd", or "vtlcmd-run" of a command.
std::string manualPageName(const CLI::App& program, const CLI::App& command);

}  // namespace vtlcmd::runner
