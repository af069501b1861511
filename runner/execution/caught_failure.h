#pragma once

#include <string>

#include "execution/frame_record.h"

namespace vtlcmd::runner {

struct CaughtFailure {
  /// In words for the user.
  std::string text;
  Failure failure;
};

/// What the exception that is being handled means for a frame. For handlers only.
CaughtFailure caughtFailure();

}  // namespace vtlcmd::runner
