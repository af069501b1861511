#include "readers/read_limits.h"

#include "platform/process.h"

namespace vtlcmd::runner {

ReadLimits& readLimits() {
  static ReadLimits limits{.program = ownFile()};
  return limits;
}

}  // namespace vtlcmd::runner
