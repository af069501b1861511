#include "number_grammar.h"

#include <algorithm>

namespace vtlcmd::oracle {
namespace {

constexpr Uint128 magnitudeCap = Uint128{1} << 64;
constexpr std::int64_t exponentCap = 1'000'000'000'000'000;

/// Reads bytes one by one; past the end stands a NUL, as in a terminated text.
class Cursor {
 public:
  Cursor(std::string_view text, std::size_t position) : text_(text), position_(position) {}

  std::size_t position() const { return position_; }
  char peek(std::size_t ahead = 0) const {
    return position_ + ahead < text_.size() ? text_[position_ + ahead] : '\0';
  }
  void advance(std::size_t count = 1) { position_ += count; }

  bool takeIf(char lowerCase) {
    if ((peek() | 0x20) != lowerCase) return false;
    advance();
    return true;
  }

  /// Takes a sign, if there is one, and tells whether it was a minus.
  bool takeSign() {
    const char sign = peek();
    if (sign == '+' || sign == '-') advance();
    return sign == '-';
  }

 private:
  std::string_view text_;
  std::size_t position_;
};

bool isDecimalDigit(char byte) { return byte >= '0' && byte <= '9'; }

/// -1 for a byte that is no digit of the base.
int digitValue(char byte, bool hexadecimal) {
  if (isDecimalDigit(byte)) return byte - '0';
  const int letter = (byte | 0x20) - 'a';
  return hexadecimal && letter >= 0 && letter < 6 ? letter + 10 : -1;
}

/// Gathers digits and hands them to the big number several at a time.
class DigitGatherer {
 public:
  explicit DigitGatherer(bool hexadecimal) : base_(hexadecimal ? 16 : 10) {}

  void add(int digit) {
    pending_ = pending_ * base_ + static_cast<std::uint32_t>(digit);
    scale_ *= base_;
    if (scale_ >= 100'000'000) flush();
  }
  BigInteger finish() {
    flush();
    return number_;
  }

 private:
  void flush() {
    number_.multiplyAdd(scale_, pending_);
    pending_ = 0;
    scale_ = 1;
  }

  std::uint32_t base_;
  std::uint32_t pending_ = 0;
  std::uint32_t scale_ = 1;
  BigInteger number_;
};

/// The exponent behind its letter; 0, and the cursor where it was, when it has no digits.
std::int64_t takeExponent(Cursor& cursor, char letter) {
  Cursor ahead = cursor;
  if (!ahead.takeIf(letter)) return 0;
  const bool negative = ahead.takeSign();
  if (!isDecimalDigit(ahead.peek())) return 0;
  std::int64_t exponent = 0;
  for (; isDecimalDigit(ahead.peek()); ahead.advance()) {
    exponent = std::min(exponent * 10 + digitValue(ahead.peek(), false), exponentCap);
  }
  cursor = ahead;
  return negative ? -exponent : exponent;
}

}  // namespace

bool isSpace(char byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

std::size_t skipSpace(std::string_view text, std::size_t from) {
  while (from < text.size() && isSpace(text[from])) ++from;
  return from;
}

std::optional<IntegerText> readInteger(std::string_view text) {
  Cursor cursor(text, skipSpace(text, 0));
  const bool negative = cursor.takeSign();
  if (!isDecimalDigit(cursor.peek())) return std::nullopt;
  Uint128 magnitude = 0;
  for (; isDecimalDigit(cursor.peek()); cursor.advance()) {
    magnitude = std::min(magnitude * 10 + static_cast<Uint128>(cursor.peek() - '0'), magnitudeCap);
  }
  return IntegerText{negative, magnitude, cursor.position()};
}

std::optional<FloatText> readFloat(std::string_view text) {
  Cursor cursor(text, skipSpace(text, 0));
  const bool negative = cursor.takeSign();
  const bool hexadecimal = cursor.peek() == '0' && (cursor.peek(1) | 0x20) == 'x' &&
                           (digitValue(cursor.peek(2), true) >= 0 ||
                            (cursor.peek(2) == '.' && digitValue(cursor.peek(3), true) >= 0));
  if (hexadecimal) cursor.advance(2);

  DigitGatherer digits(hexadecimal);
  std::int64_t exponent = 0;
  bool anyDigit = false;
  bool pointSeen = false;
  for (;; cursor.advance()) {
    const int digit = digitValue(cursor.peek(), hexadecimal);
    if (digit >= 0) {
      digits.add(digit);
      anyDigit = true;
      if (pointSeen) exponent -= hexadecimal ? 4 : 1;
    } else if (cursor.peek() == '.' && !pointSeen) {
      pointSeen = true;
    } else {
      break;
    }
  }
  if (!anyDigit) return std::nullopt;
  exponent += takeExponent(cursor, hexadecimal ? 'p' : 'e');
  return FloatText{negative, digits.finish(), hexadecimal, exponent, cursor.position()};
}

}  // namespace vtlcmd::oracle
