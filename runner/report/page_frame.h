#pragma once

#include <cstdint>
#include <string>

#include "text/json.h"

namespace vtlcmd::runner {

/// A frame of a journal, for the sections of a page. They are handed the frames by rising place in
/// the job.
struct PageFrame {
  /// The place in the job.
  std::uint64_t index = 0;
  /// As the user knows it, and as a number.
  std::string text;
  double number = 0;
  /// What its line tells.
  const Json& content;
  /// Null when times are left out.
  const Json& times;
};

}  // namespace vtlcmd::runner
