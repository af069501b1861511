#pragma once

#include <optional>
#include <vector>

#include "readers/byte_source.h"
#include "readers/data_file.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {

/// The values in the messages of a process that reads a file. The source's read gives all bytes
/// asked for or throws. Throws ReadError, also for what are no messages.
std::vector<DataValue> parseReply(ByteSource& messages, NpyForm form);

}  // namespace vtlcmd::runner
