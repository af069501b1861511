#pragma once

#include <exception>

namespace vtlcmd::runner {

/// From now on what asks the process to end (an interrupt, a termination, a hang-up; on Windows
/// the events of the console) is only remembered, unless whoever started the process had it
/// ignored. The second one asks to abandon the frame too; the third ends the process at once. The
/// first one says on a terminal that it waits for the frame. Failed writes are remembered too.
void rememberInterrupts();

/// Has the current frame abandoned as the second signal does.
void abandonFrame() noexcept;

/// A closed standard output is remembered, and a file that may not grow; writing there then fails.
void rememberFailedWrites();

/// The number of the first signal that asked for an end; 0 when none did.
int interruptSignal() noexcept;

/// Whether the current frame isn't to be waited for.
bool frameAbandoned() noexcept;

/// Leaves what takes long in a frame that is abandoned.
class FrameAbandoned : public std::exception {
 public:
  const char* what() const noexcept override;
};

/// To be called about every tenth of a second by what may take longer. Throws FrameAbandoned.
void throwIfAbandoned();

/// Whether something was written that nobody reads any more.
bool readerGone() noexcept;

}  // namespace vtlcmd::runner
