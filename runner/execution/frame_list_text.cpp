#include "execution/frame_list_text.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <utility>

#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

constexpr double mostFrames = 1'000'000;

/// The last frame belongs to a range also when steps without an exact binary form end just before
/// it.
constexpr double stepTolerance = 1e-9;

class FramesParser {
 public:
  explicit FramesParser(std::string_view text) : text_(text), rest_(text) {}

  FrameList parse() {
    do {
      addRange();
    } while (take(','));
    if (!rest_.empty()) fail("expected ',' before " + inQuotes(rest_));
    return std::move(frames_);
  }

 private:
  [[noreturn]] void fail(const std::string& reason) const {
    throw FrameListError("the frames " + inQuotes(text_) + " make no sense: " + reason);
  }

  bool take(char wanted) {
    if (!rest_.starts_with(wanted)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  double number() {
    double value = 0;
    const auto [end, error] =
        std::from_chars(rest_.data(), rest_.data() + rest_.size(), value, std::chars_format::fixed);
    if (error != std::errc() || !std::isfinite(value)) {
      fail(rest_.empty() ? "a number is missing at the end"
                         : "expected a number at " + inQuotes(rest_));
    }
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return value;
  }

  void addRange() {
    const double first = number();
    if (!take('-')) {
      add(first, 0, 0);
      return;
    }
    const double last = number();
    const double step = take('x') || take(':') ? number() : 1;
    if (!(step > 0)) fail("the step must be above zero");
    add(first, last < first ? -step : step, std::abs(last - first) / step);
  }

  void add(double first, double step, double steps) {
    if (steps + static_cast<double>(frames_.size()) >= mostFrames) fail("more than 1000000 frames");
    const auto last = static_cast<std::size_t>(std::floor(steps + stepTolerance));
    frames_.append(first, step, last + 1);
  }

  std::string_view text_;
  std::string_view rest_;
  FrameList frames_;
};

}  // namespace

FrameList parseFrameList(std::string_view text) { return FramesParser(text).parse(); }

}  // namespace vtlcmd::runner
