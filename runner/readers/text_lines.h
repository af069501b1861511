#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "readers/byte_source.h"

namespace vtlcmd::runner {

/// The lines of a text file, whether they end with a line feed, a carriage return before it, or the
/// file.
class TextLines {
 public:
  explicit TextLines(ByteSource& file) : file_(file) {}

  /// The next line without its end. False behind the last one.
  bool next(std::string& line);

  /// Of the line that `next` gave last; the first is 1.
  std::size_t number() const { return number_; }

 private:
  bool refill();

  ByteSource& file_;
  std::array<char, 1 << 16> buffer_;
  std::string_view rest_;
  std::size_t number_ = 0;
};

}  // namespace vtlcmd::runner
