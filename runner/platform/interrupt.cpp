#include "platform/interrupt.h"

namespace vtlcmd::runner {

const char* FrameAbandoned::what() const noexcept { return "the frame is abandoned"; }

void throwIfAbandoned() {
  if (frameAbandoned()) throw FrameAbandoned();
}

}  // namespace vtlcmd::runner
