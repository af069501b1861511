#pragma once

namespace vtlcmd::runner {

/// From now on the first interrupt of the process is only remembered; a second one ends it.
void rememberInterrupt();

bool interruptRequested() noexcept;

}  // namespace vtlcmd::runner
