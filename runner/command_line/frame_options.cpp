#include "command_line/frame_options.h"

#include <CLI/App.hpp>
#include <algorithm>
#include <cmath>

#include "command_line/usage_error.h"
#include "platform/usable_processors.h"
#include "text/library_text.h"
#include "text/spelled_number.h"

namespace vtlcmd::runner {
namespace {

/// Each takes three of the files that a process may have open.
constexpr unsigned mostWorkers = 256;
/// In seconds: a year.
constexpr double longestTimeout = 366.0 * 24 * 3600;

/// The number that a whole text spells, between two bounds.
template <typename T>
std::optional<T> numberIn(const std::string& text, T least, T most) {
  const std::optional<T> number = spelledNumber<T>(text);
  return number && *number >= least && *number <= most ? number : std::nullopt;
}

}  // namespace

void FrameOptions::addTo(CLI::App& command) {
  command
      .add_option("--workers", workers_,
                  "Run frames in so many processes at once, at most one a frame; auto means the "
                  "processors that there are for it. A process that crashes costs its frame alone")
      ->type_name("NUMBER")
      ->envname("VTLCMD_WORKERS");
  command
      .add_option("--frame-timeout", timeout_,
                  "Time that a frame may take; it runs in a process of its own, which is ended")
      ->type_name("SECONDS");
  command
      .add_option("--retry", retries_,
                  "Run a frame again, up to so many times, that failed for want of memory, time or "
                  "room or because its process was killed")
      ->type_name("NUMBER")
      ->capture_default_str();
  CLI::Option* keepGoing = command.add_flag_callback(
      "--keep-going", [this] { failFast_ = false; },
      "Run the other frames when one has failed, which is the default");
  command
      .add_flag_callback(
          "--fail-fast", [this] { failFast_ = true; }, "End the run with the first failed frame")
      ->excludes(keepGoing);
}

FrameSettings FrameOptions::settings(std::size_t frames) const {
  FrameSettings settings;
  settings.timeout = timeout();
  settings.workers = static_cast<unsigned>(std::min<std::size_t>(workers(), frames));
  if (settings.timeout && settings.workers == 0) settings.workers = 1;
  const std::optional<std::uint32_t> retries = numberIn<std::uint32_t>(retries_, 0, UINT32_MAX - 1);
  if (!retries) throw UsageError("--retry takes a number of attempts, not " + inQuotes(retries_));
  settings.retries = *retries;
  settings.failFast = failFast_;
  return settings;
}

unsigned FrameOptions::workers() const {
  if (workers_.empty()) return 0;
  if (workers_ == "auto") return std::min(usableProcessors(), mostWorkers);
  if (const std::optional<unsigned> number = numberIn<unsigned>(workers_, 1, mostWorkers))
    return *number;
  throw UsageError("--workers (or VTLCMD_WORKERS) takes a number of processes from 1 to " +
                   std::to_string(mostWorkers) + ", or auto, not " + inQuotes(workers_));
}

std::optional<std::chrono::milliseconds> FrameOptions::timeout() const {
  if (timeout_.empty()) return std::nullopt;
  const std::optional<double> seconds = numberIn<double>(timeout_, 0.001, longestTimeout);
  if (!seconds)
    throw UsageError("--frame-timeout takes a number of seconds, not " + inQuotes(timeout_));
  return std::chrono::milliseconds(std::llround(*seconds * 1000));
}

}  // namespace vtlcmd::runner
