#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "execution/failure.h"

namespace vtlcmd::runner {

/// Levels whose messages are counted, in this order.
inline constexpr std::array<std::string_view, 3> problemLevels{"critical", "error", "warning"};

/// What is to be known of each frame of a report at once.
struct FrameFacts {
  std::uint64_t index = 0;
  /// The frame's number as a text.
  std::string frame;
  Failure failure = Failure::permanent;
  bool interrupted = false;
  std::uint64_t graphErrors = 0;
  std::uint64_t graphWarnings = 0;
  /// By problemLevels, from whatever source.
  std::array<std::uint32_t, problemLevels.size()> problems{};
};

/// The facts in what a frame's line tells; nothing when it isn't JSON or lacks one of them.
std::optional<FrameFacts> frameFacts(std::string_view content);

/// The frame's number; NaN for a text that is none.
double frameNumber(const std::string& text);

}  // namespace vtlcmd::runner
