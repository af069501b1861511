#include "vtlcmd/input/input_port.h"

#include <gtest/gtest.h>
#include <string>

#include "support/allocation_count.h"

namespace vtlcmd {
namespace {

TEST(InputPort, ValueLineAllocatesOnceForItsOwnWords) {
  const std::string longText(1000, 'x');
  for (const bool isJobPort : {false, true}) {
    const InputPort port{isJobPort, longText.c_str(), longText.c_str()};
    const std::size_t before = testing::allocationCount();
    TextBuilder line = port.beginValueLine();
    EXPECT_LE(testing::allocationCount(), before + 1);
    EXPECT_EQ(line.text(), std::string("Set ") + (isJobPort ? "Job" : "input") + " port '" +
                               longText + "': (" + longText + ") ");
  }
}

}  // namespace
}  // namespace vtlcmd
