#pragma once

#include <array>
#include <string>

namespace vtlcmd::validator {

enum class Outcome { passed, failed, crashed, timedOut, skipped, warning };

inline constexpr std::array<const char*, 6> outcomeNames{"passed",    "failed",  "crashed",
                                                         "timed-out", "skipped", "warning"};

inline const char* nameOf(Outcome outcome) {
  return outcomeNames[static_cast<std::size_t>(outcome)];
}

/// Whether a plug-in with such a result is none to rely on.
constexpr bool isBad(Outcome outcome) {
  return outcome == Outcome::failed || outcome == Outcome::crashed || outcome == Outcome::timedOut;
}

struct Result {
  Outcome outcome;
  /// Why; empty when the check passed.
  std::string note;
};

}  // namespace vtlcmd::validator
