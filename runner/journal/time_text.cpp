#include "journal/time_text.h"

#include <cstdio>

namespace vtlcmd::runner {

std::string timeText(std::chrono::system_clock::time_point time) {
  using namespace std::chrono;
  const auto day = floor<days>(time);
  const year_month_day date(day);
  const hh_mm_ss clock(floor<seconds>(time - day));
  // Room for any year, month and day that the types can hold.
  char text[64];
  const int length = std::snprintf(
      text, sizeof text, "%04d-%02u-%02uT%02ld:%02ld:%02ldZ", static_cast<int>(date.year()),
      static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
      static_cast<long>(clock.hours().count()), static_cast<long>(clock.minutes().count()),
      static_cast<long>(clock.seconds().count()));
  return {text, static_cast<std::size_t>(length)};
}

}  // namespace vtlcmd::runner
