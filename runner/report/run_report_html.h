#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// Writes the report of the runs that a logger knows of as a page for people, which needs no other
/// file. Its messages must have been distributed. `portNames` are the ports whose texts are told.
void writeHtmlReport(std::ostream& stream, const VtlCmdLogger& logger,
                     const std::vector<std::string>& portNames);

}  // namespace vtlcmd::runner
