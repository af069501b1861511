#include "journal/time_text.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

TEST(TimeText, UtcInWholeSeconds) {
  using namespace std::chrono;
  EXPECT_EQ(timeText(sys_days(2026y / January / 31d) + 23h + 59min + 59s + 999ms),
            "2026-01-31T23:59:59Z");
  EXPECT_EQ(timeText(system_clock::time_point()), "1970-01-01T00:00:00Z");
}

}  // namespace
}  // namespace vtlcmd::runner
