#include "execution/progress.h"

#include <ostream>

namespace vtlcmd::runner {
namespace {

constexpr auto shortestPause = std::chrono::milliseconds(500);
constexpr const char* eraseLine = "\r\x1b[K";

}  // namespace

void Progress::show(const std::string& text) {
  if (!enabled_) return;
  const auto now = std::chrono::steady_clock::now();
  if (shownAt_ && now - *shownAt_ < shortestPause) return;
  shownAt_ = now;
  visible_ = true;
  stream_ << eraseLine << text << std::flush;
}

void Progress::clear() {
  if (!visible_) return;
  visible_ = false;
  stream_ << eraseLine << std::flush;
}

}  // namespace vtlcmd::runner
