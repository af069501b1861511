#pragma once

#include <string>

#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// Hands the logger's messages to the groups and entries that they belong to, where reports look
/// for them. Call it once, when no more messages will come.
void distributeMessages(VtlCmdLogger& logger);

/// What reports call a source and a level; their number where they have no name.
std::string sourceName(LogSource source);
std::string levelName(LogLevel level);

}  // namespace vtlcmd::runner
