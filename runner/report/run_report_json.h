#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

/// Writes all that a logger knows of its runs as one JSON document. Its messages must have been
/// distributed. `portNames` are the ports whose texts are told. Bytes that are no UTF-8 text become
/// replacement characters.
void writeJsonReport(std::ostream& stream, const VtlCmdLogger& logger,
                     const std::vector<std::string>& portNames);

}  // namespace vtlcmd::runner
