#pragma once

namespace vtlcmd {

/// Tells the process's error stream that the host gave no record: without one no logger can be
/// reached.
void reportNullData();

}  // namespace vtlcmd
