#include <cctype>
#include <cerrno>
#include <charconv>
#include <clocale>
#include <cstring>
#include <string>

#include "vtlcmd/input/read_double.h"

// Of this platform's two functions one knows neither hexadecimal texts nor infinities, and the
// other gives 2^-52 times the value for long texts that lie just below a power of two. The standard
// library's reader for char ranges has no such faults, but a narrower grammar and one locale.

namespace vtlcmd {
namespace {

bool is(char byte, int (*kind)(int)) { return kind(static_cast<unsigned char>(byte)) != 0; }

/// Whether digits of a hexadecimal number follow; behind a point they may still fail to.
bool isHexadecimal(const char* text) {
  return text[0] == '0' && (text[1] == 'x' || text[1] == 'X') &&
         (text[2] == '.' || is(text[2], std::isxdigit));
}

/// Where a hexadecimal number ends at the latest. The standard library would read "p+-1" as "p-1".
const char* hexadecimalEnd(const char* digits) {
  while (is(*digits, std::isxdigit) || *digits == '.') ++digits;
  if (*digits != 'p' && *digits != 'P') return digits;
  const char* exponent = digits + (digits[1] == '+' || digits[1] == '-' ? 2 : 1);
  if (!is(*exponent, std::isdigit)) return digits;
  while (is(*exponent, std::isdigit)) ++exponent;
  return exponent;
}

/// Reads at `first`, where no sign stands any more.
std::from_chars_result readMagnitude(const char* first, double& value) {
  if (isHexadecimal(first)) {
    const char* digits = first + 2;
    const auto result =
        std::from_chars(digits, hexadecimalEnd(digits), value, std::chars_format::hex);
    if (result.ec != std::errc::invalid_argument) return result;
  }
  return std::from_chars(first, first + std::strlen(first), value);
}

/// As above, with the locale's decimal point in the text.
std::from_chars_result readMagnitude(const char* first, double& value, char point) {
  std::string text(first);
  for (char& byte : text) {
    if (byte == point || byte == '.') byte = byte == '.' ? point : '.';
  }
  const auto [end, error] = readMagnitude(text.c_str(), value);
  return {first + (end - text.c_str()), error};
}

}  // namespace

double readDouble(const char* text, const char*& end) {
  end = text;
  const char* first = text;
  while (is(*first, std::isspace)) ++first;
  const bool negative = *first == '-';
  if (negative || *first == '+') ++first;
  // A second sign would be taken.
  if (*first == '-') return 0;
  // Read only; a host that changes the locale meanwhile disturbs every reader of numbers.
  const char point = *std::localeconv()->decimal_point;  // NOLINT(concurrency-mt-unsafe)
  double value = 0;
  const auto [stop, error] =
      point == '.' ? readMagnitude(first, value) : readMagnitude(first, value, point);
  if (error == std::errc::invalid_argument) return 0;
  if (error == std::errc::result_out_of_range) errno = ERANGE;
  end = stop;
  return negative ? -value : value;
}

}  // namespace vtlcmd
