#include "execution/progress.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <ostream>
#include <utility>

#include "text/shortest_text.h"

namespace vtlcmd::runner {
namespace {

using Seconds = std::chrono::duration<double>;

constexpr const char* eraseLine = "\r\x1b[K";

constexpr std::chrono::milliseconds pauseBetween(ProgressForm form) {
  return std::chrono::milliseconds(form == ProgressForm::terminalLine ? 500 : 10'000);
}

template <typename... Arguments>
std::string formatted(const char* format, Arguments... arguments) {
  std::array<char, 64> text{};
  static_cast<void>(std::snprintf(text.data(), text.size(), format, arguments...));
  return text.data();
}

/// "0:07", "12:00" or "1:00:00".
std::string durationText(double seconds) {
  // More than a year is as good as for ever.
  constexpr double longest = 366.0 * 24 * 3600;
  if (!(seconds < longest)) return "over a year";
  const long whole = std::lround(seconds);
  const std::string hours = whole < 3600 ? "" : std::to_string(whole / 3600) + ":";
  const char* format = hours.empty() ? "%ld:%02ld" : "%02ld:%02ld";
  return hours + formatted(format, whole / 60 % 60, whole % 60);
}

/// Both ends of the scale keep a digit that tells something.
std::string rateText(double framesPerSecond) {
  if (framesPerSecond >= 1) return formatted("%.1f frames/s", framesPerSecond);
  return formatted("%.1f s/frame", 1 / framesPerSecond);
}

}  // namespace

Progress::Progress(std::ostream& stream, ProgressForm form, std::size_t frameCount, Clock clock)
    : stream_(stream),
      form_(form),
      frameCount_(frameCount),
      clock_(std::move(clock)),
      start_(clock_()) {}

Progress::~Progress() { hide(); }

void Progress::beginFrame(std::size_t index, double frame) {
  if (form_ == ProgressForm::none) return;
  const std::lock_guard lock(mutex_);
  index_ = index;
  frame_ = shortestText(frame);
  frameStart_ = clock_();
  renewAt(frameStart_);
}

void Progress::renew() {
  const std::lock_guard lock(mutex_);
  if (!paused_ && !frame_.empty()) renewAt(clock_());
}

void Progress::hide() {
  if (form_ == ProgressForm::none) return;
  const std::lock_guard lock(mutex_);
  paused_ = true;
  hideLine();
}

void Progress::show() {
  if (form_ == ProgressForm::none) return;
  const std::lock_guard lock(mutex_);
  paused_ = false;
  showLine();
}

void Progress::renewAt(Time now) {
  if (renewedAt_ && now - *renewedAt_ < pauseBetween(form_)) return;
  renewedAt_ = now;
  text_ = textAt(now);
  if (form_ == ProgressForm::plainLines) {
    stream_ << text_ << std::endl;
  } else {
    hideLine();
    showLine();
  }
}

void Progress::hideLine() {
  if (!std::exchange(visible_, false)) return;
  stream_ << eraseLine << std::flush;
}

void Progress::showLine() {
  if (form_ != ProgressForm::terminalLine || text_.empty() || visible_) return;
  visible_ = true;
  stream_ << text_ << std::flush;
}

std::string Progress::textAt(Time now) const {
  std::string text = "frame " + frame_ + " (" + std::to_string(index_ + 1) + " of " +
                     std::to_string(frameCount_) + "), " +
                     std::to_string(index_ * 100 / frameCount_) + " %";
  const double elapsed = Seconds(frameStart_ - start_).count();
  if (index_ == 0 || elapsed <= 0) return text;
  const double framesPerSecond = static_cast<double>(index_) / elapsed;
  const double ofThisFrame = 1 / framesPerSecond - Seconds(now - frameStart_).count();
  const double ofLaterFrames = static_cast<double>(frameCount_ - index_ - 1) / framesPerSecond;
  return text + ", " + rateText(framesPerSecond) + ", " +
         durationText(std::max(ofThisFrame, 0.0) + ofLaterFrames) + " left";
}

}  // namespace vtlcmd::runner
