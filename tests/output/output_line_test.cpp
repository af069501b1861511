#include "vtlcmd/output/output_line.h"

#include <gtest/gtest.h>
#include <string>

#include "support/allocation_count.h"

namespace vtlcmd {
namespace {

TEST(OutputLine, AllocatesOnceForItsOwnWords) {
  const std::string longText(1000, 'x');
  const Orvel::String name = longText.c_str();
  for (const std::uint32_t limit : {0U, 10U}) {
    VtlCmdLogger logger(limit);
    const std::size_t before = testing::allocationCount();
    OutputLine line(name, longText.c_str(), logger);
    EXPECT_LE(testing::allocationCount(), before + 1);
    EXPECT_EQ(line.text().text(), "Output port '" + longText + "': (" + longText +
                                      (limit == 0 ? " output suppressed)" : ") "));
  }
}

}  // namespace
}  // namespace vtlcmd
