#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace vtlcmd::runner {

/// How the frames of a run are to be run.
struct FrameSettings {
  /// The processes that run them; none for the program itself.
  unsigned workers = 0;
  /// What a frame may take, in a process of its own.
  std::optional<std::chrono::milliseconds> timeout;
  /// Further attempts that a frame may have when another one may cure it.
  std::uint32_t retries = 0;
  /// The first failed frame ends the run.
  bool failFast = false;
};

/// The options of it.
class FrameOptions {
 public:
  void addTo(CLI::App& command);

  /// For so many frames. Throws UsageError for a value that makes no sense.
  FrameSettings settings(std::size_t frames) const;

 private:
  unsigned workers() const;
  std::optional<std::chrono::milliseconds> timeout() const;

  std::string workers_;
  std::string timeout_;
  std::string retries_ = "0";
  bool failFast_ = false;
};

}  // namespace vtlcmd::runner
