#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
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
/// never set, and the rounding mode apply as they are when the text is begun.
///
/// For one text on one thread. Allocation failure leaves as std::bad_alloc.
class TextBuilder {
 public:
  /// `room`: characters that the text is expected to have; more only cost time.
  explicit TextBuilder(std::size_t room);

  TextBuilder& operator<<(std::string_view piece) {
    text_.append(piece);
    return *this;
  }
  template <TextNumber Number>
  TextBuilder& operator<<(Number number);

  const std::string& text() const noexcept { return text_; }

 private:
  std::string text_;
  /// Whether numbers have the form that needs no stream.
  bool plainNumbers_;
};

}  // namespace vtlcmd
