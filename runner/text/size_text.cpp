#include "text/size_text.h"

#include <charconv>
#include <limits>

namespace vtlcmd::runner {
namespace {

constexpr std::string_view units = "KMGT";

}  // namespace

std::optional<std::uint64_t> sizeFrom(std::string_view text) {
  std::uint64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || number == 0) return std::nullopt;
  const std::string_view unit(stop, static_cast<std::size_t>(end - stop));
  if (unit.empty() || unit == "B") return number;
  const std::size_t power = units.find(unit[0]);
  const std::string_view rest = unit.substr(1);
  if (power == std::string_view::npos || !(rest.empty() || rest == "B" || rest == "iB"))
    return std::nullopt;
  const std::size_t shift = 10 * (power + 1);
  if (number > std::numeric_limits<std::uint64_t>::max() >> shift) return std::nullopt;
  return number << shift;
}

std::string sizeText(std::uint64_t bytes) {
  std::size_t power = 0;
  while (power < units.size() && bytes != 0 && bytes % 1024 == 0) {
    bytes /= 1024;
    ++power;
  }
  if (power == 0) return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
  return std::to_string(bytes) + " " + units[power - 1] + "iB";
}

}  // namespace vtlcmd::runner
