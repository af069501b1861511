#include <gtest/gtest.h>
#include <limits>

#include "vtlcmd/host/imports/orvel_array.h"

namespace Orvel::Internal {
namespace {

TEST(UntypedTypeRep, KeepsTheAlignment) {
  for (const std::uint64_t alignment : {1U, 2U, 8U, 16U, 64U, 4096U}) {
    const UntypedTypeRep type(alignment, alignment);
    void* block = type.allocate(3);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % alignment, 0U);
    static_cast<char*>(block)[3 * alignment - 1] = 'x';
    type.deallocate(block, 3);
  }
}

TEST(UntypedTypeRep, RefusesMoreBytesThanThereAreNumbers) {
  const std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
  EXPECT_THROW(UntypedTypeRep(16, 8).allocate(most / 16 + 1), std::bad_array_new_length);
  EXPECT_THROW(UntypedTypeRep(16, 8).allocate(most), std::bad_array_new_length);
}

}  // namespace
}  // namespace Orvel::Internal
