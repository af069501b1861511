#pragma once

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>

namespace vtlcmd::runner {

/// One line on a terminal that tells how far a run is, renewed at most twice a second.
class Progress {
 public:
  Progress(std::ostream& stream, bool enabled) : stream_(stream), enabled_(enabled) {}
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { clear(); }

  void show(const std::string& text);
  /// Takes the line away, so that something else can be printed.
  void clear();

 private:
  std::ostream& stream_;
  bool enabled_;
  bool visible_ = false;
  std::optional<std::chrono::steady_clock::time_point> shownAt_;
};

}  // namespace vtlcmd::runner
