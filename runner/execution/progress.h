#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <mutex>
#include <optional>
#include <string>

namespace vtlcmd::runner {

enum class ProgressForm {
  none,
  /// One line of a terminal, renewed at most twice a second and taken away in the end.
  terminalLine,
  /// Lines for a file or a pipe, one at the start and then at most one in ten seconds.
  plainLines,
};

/// Tells how far a run is: its frame, the share of the frames that are done, frames a second and
/// the time left. One thread runs the frames; any thread may renew.
class Progress {
 public:
  using Time = std::chrono::steady_clock::time_point;
  using Clock = std::function<Time()>;

  /// The stream must outlive this. `clock` never runs backwards.
  Progress(std::ostream& stream, ProgressForm form, std::size_t frameCount,
           Clock clock = std::chrono::steady_clock::now);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  /// Before each frame: its place in the run, and its number as the user knows it.
  void beginFrame(std::size_t index, double frame);

  /// While a frame runs, to be called every now and then: brings what is told up to date. Leaves
  /// the stream alone between `hide` and `show`.
  void renew();

  /// Round everything else that is printed on the terminal: take the line away, and put it back.
  void hide();
  void show();

 private:
  void renewAt(Time now);
  void showLine();
  void hideLine();
  std::string textAt(Time now) const;

  std::ostream& stream_;
  ProgressForm form_;
  std::size_t frameCount_;
  Clock clock_;
  Time start_;
  /// For all that follows.
  std::mutex mutex_;
  std::size_t index_ = 0;
  /// Empty before the first one.
  std::string frame_;
  Time frameStart_;
  bool paused_ = false;
  std::optional<Time> renewedAt_;
  std::string text_;
  bool visible_ = false;
};

}  // namespace vtlcmd::runner
