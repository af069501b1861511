#include "command_line/option_values.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <system_error>
#include <utility>

#include "command_line/usage_error.h"
#include "execution/frame_list_text.h"
#include "execution/session.h"
#include "text/library_text.h"
#include "text/near_misses.h"
#include "text/path_text.h"
#include "text/spelled_number.h"
#include "vtlcmd/logging/vtlcmd_logger.h"

namespace vtlcmd::runner {

FrameList parseFrames(const std::string& text) {
  try {
    return parseFrameList(text);
  } catch (const FrameListError& error) {
    throw UsageError(error.what());
  }
}

double parseFramesPerSecond(const std::string& text) {
  const std::size_t slash = std::min(text.find('/'), text.size());
  const std::optional<double> dividend = spelledNumber<double>(text.substr(0, slash));
  const std::optional<double> divisor =
      slash == text.size() ? 1.0 : spelledNumber<double>(text.substr(slash + 1));
  if (dividend && divisor && *divisor > 0) {
    const double number = *dividend / *divisor;
    if (number > 0 && std::isnormal(number)) return number;
  }
  throw UsageError("--fps takes a number of frames a second above zero, like 24 or 24000/1001, " +
                   ("not " + inQuotes(text)));
}

Tolerance parseTolerance(const std::string& text) {
  const std::size_t comma = text.find(',');
  const std::optional<double> absolute = spelledNumber<double>(text.substr(0, comma));
  const std::optional<double> relative =
      comma == std::string::npos ? 0.0 : spelledNumber<double>(text.substr(comma + 1));
  for (const std::optional<double>& number : {absolute, relative}) {
    if (!number || !std::isfinite(*number) || *number < 0)
      throw UsageError(
          "--tolerance takes one or two numbers of zero or more, like 1e-6 or "
          "1e-9,1e-6, not " +
          inQuotes(text));
  }
  return {*absolute, *relative};
}

std::uint32_t parseVerbosity(const std::string& text) {
  const auto& names = VtlCmdLogger::levelNames;
  const auto named = std::find(names.begin(), names.end(), text) - names.begin();
  if (std::cmp_less(named, names.size())) return static_cast<std::uint32_t>(named);
  const std::optional<std::uint32_t> number = spelledNumber<std::uint32_t>(text);
  if (number && *number < names.size()) return *number;
  throw UsageError(inQuotes(text) + " is no level of messages: none, critical, error, warning, " +
                   "progress, verbose and debug are, or 0 to 6" +
                   nearMissHint(text, {names.begin(), names.end()}));
}

std::uint32_t parsePrintLimit(const std::string& text) {
  if (const std::optional<std::uint32_t> number = spelledNumber<std::uint32_t>(text))
    return *number;
  throw UsageError("the print limit is a number from 0 to 4294967295, not " + inQuotes(text));
}

std::uint64_t parseElements(const std::string& text) {
  if (text == "all") return allElements;
  if (const std::optional<std::uint64_t> number = spelledNumber<std::uint64_t>(text))
    return *number;
  throw UsageError("--elements takes a number or 'all', not " + inQuotes(text));
}

bool isOneOf(const std::string& word, std::span<const char* const> names) {
  return std::find(names.begin(), names.end(), word) != names.end();
}

HostPath parsePath(const std::string& option, const std::string& text) {
  try {
    return widePath(text);
  } catch (const std::system_error&) {
    throw UsageError(option + ": the path isn't valid text in the file system's code page");
  }
}

}  // namespace vtlcmd::runner
