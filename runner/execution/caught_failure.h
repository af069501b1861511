#pragma once

#include <string>

#include "execution/failure.h"

namespace vtlcmd::runner {

struct CaughtFailure {
  /// In words for the user.
  std::string text;
  Failure failure;
};

/// What the exception that is being handled means for a frame, whose number as the user knows it is
/// `frame`. For handlers only.
CaughtFailure caughtFailure(const std::string& frame);

}  // namespace vtlcmd::runner
