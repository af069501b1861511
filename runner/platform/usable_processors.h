#pragma once

namespace vtlcmd::runner {

/// The processors that this process may keep busy, at least one: those that it may run on, as far
/// as its control group or job gives it time on them.
unsigned usableProcessors();

}  // namespace vtlcmd::runner
