#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vtlcmd {

template <typename T, typename... Types>
concept OneOf = (std::same_as<T, Types> || ...);

/// What reads as a number in a text.
template <typename T>
concept TextNumber = OneOf<T, bool, std::int16_t, std::uint16_t, std::int32_t, std::uint32_t,
                           std::int64_t, std::uint64_t, float, double>;

/// The text of a message in the making.
///
/// Numbers read as a stream in its default state writes them: decimal integers, bools as 1 and 0,
/// floats and doubles alike in the general format at precision 6. The global C++ locale, which we
/// never set, applies as it is at the first number, the rounding mode at each.
///
/// For one text on one thread. Allocation failure leaves as std::bad_alloc.
class TextBuilder {
 public:
  /// `room`: characters that the text is expected to have; more only cost time.
  explicit TextBuilder(std::size_t room) : buffer_(room, '\0') {}

  TextBuilder& operator<<(std::string_view piece) {
    size_ += piece.copy(roomFor(piece.size()), piece.size());
    return *this;
  }
  template <TextNumber Number>
  TextBuilder& operator<<(Number number);

  /// Characters written so far.
  std::size_t size() const noexcept { return size_; }
  /// The text so far, valid until more is written.
  const std::string& text() {
    buffer_.resize(size_);
    return buffer_;
  }

 private:
  /// Where the next `size` characters go.
  char* roomFor(std::size_t size) {
    if (buffer_.size() - size_ < size) grow(size);
    return buffer_.data() + size_;
  }
  void grow(std::size_t size);

  /// The text and what room there is behind it.
  std::string buffer_;
  std::size_t size_ = 0;
  /// Unknown before the first number.
  std::optional<bool> localeIsClassic_;
};

}  // namespace vtlcmd
