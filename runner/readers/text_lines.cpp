#include "readers/text_lines.h"

namespace vtlcmd::runner {

bool TextLines::refill() {
  const std::size_t count =
      file_.read({reinterpret_cast<unsigned char*>(buffer_.data()), buffer_.size()});
  rest_ = {buffer_.data(), count};
  return count > 0;
}

bool TextLines::next(std::string& line) {
  line.clear();
  if (rest_.empty() && !refill()) return false;
  ++number_;
  std::size_t end = rest_.find('\n');
  while (end == std::string_view::npos) {
    line += rest_;
    if (!refill()) break;
    end = rest_.find('\n');
  }
  if (end != std::string_view::npos) {
    line += rest_.substr(0, end);
    rest_.remove_prefix(end + 1);
  } else {
    rest_ = {};
  }
  if (line.ends_with('\r')) line.pop_back();
  return true;
}

}  // namespace vtlcmd::runner
