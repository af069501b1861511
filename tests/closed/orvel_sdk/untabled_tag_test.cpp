#include <gtest/gtest.h>

#include "closed/support/failing_allocation.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace Orvel {
namespace {

using vtlcmd::Any;

TEST(UntabledTag, HasItsTagBeforeMemoryRunsOut) {
  const Value value = makeZero(makeArrayType(makeStructType(String("Own::Unseen::Row"), {})));
  const Any any = toAny(value);
  testing::failAllocationAfter(0);
  const Internal::TypeInfo& tag = any.type();
  const void* cast = vtlcmd::any_operations::cast(any, tag);
  testing::cancelAllocationFailure();
  EXPECT_TRUE(vtlcmd::sameType(tag, vtlcmd::makeTag("URow@Unseen@Own@@", 0, 1)));
  EXPECT_EQ(cast, valueAddress(value));
}

TEST(UntabledTag, IsNotMadeWithoutMemoryForItsTag) {
  const Value value = makeZero(makeStructType(String("Own::Rare::Row::With::A::Long::Name"), {}));
  Any any = vtlcmd::makeAny(1.5);
  const std::size_t failures = testing::failEveryAllocation(
      [&] { any = toAny(value); }, [&] { EXPECT_NE(vtlcmd::anyCast<double>(&any), nullptr); });
  EXPECT_EQ(failures > 0, testing::reachesLibraries);
  EXPECT_EQ(vtlcmd::any_operations::address(any), valueAddress(value));
}

}  // namespace
}  // namespace Orvel
