#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "execution/frame_list.h"

namespace vtlcmd::runner {

/// A text that is no list of frames, in words for the user.
class FrameListError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Frame numbers from a list like `1`, `1-10`, `10-1`, `1-10x2`, `1-10:2` or `1,5,7-9x0.5`, in the
/// order given. Numbers may be negative or have a fraction. Throws FrameListError.
FrameList parseFrameList(std::string_view text);

}  // namespace vtlcmd::runner
