#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

#include "closed/support/expect_error.h"
#include "vtlcmd/host/imports/vantrel_object.h"
#include "vtlcmd/stand_in/make_ptr.h"
#include "vtlcmd/stand_in/type_factory.h"
#include "vtlcmd/stand_in/value_factory.h"

/// Types and values inside one another to any depth.

namespace Orvel {
namespace {

using testing::expectError;
using vtlcmd::ObjectPtr;

TEST(NestedTypes, BoundsTheStructsInsideOneAnother) {
  Type type = makeStructType(String("Own::Level"), {});
  for (int level = 2; level <= 256; ++level) {
    const MemberSpec members[] = {
        {"flag", typeOf<bool>()}, {"inner", type}, {"text", typeOf<String>()}};
    type = makeStructType(String("Own::Level"), members);
  }
  const MemberSpec members[] = {
      {"flag", typeOf<bool>()}, {"inner", type}, {"text", typeOf<String>()}};
  expectError<std::invalid_argument>(
      [&] { makeStructType(String("Own::Deepest"), members); },
      "The struct 'Own::Deepest' holds more than 255 structs inside one another.");
}

TEST(NestedTypes, VectorsAndRecordsAreStructsToo) {
  Type type = typeOf<Vantrel::Simulation::Time>();
  for (int level = 2; level <= 256; ++level) {
    type = makeStructType(String("Own::Level"), std::vector<MemberSpec>{{"inner", type}});
  }
  EXPECT_THROW(makeStructType(String("Own::Level"), std::vector<MemberSpec>{{"inner", type}}),
               std::invalid_argument);
}

TEST(NestedTypes, StructsInArraysOfOneAnotherEndOnAnyStack) {
  Type type = makeStructType(String("Own::Level"), {});
  for (int level = 0; level < 100000; ++level) {
    type = makeStructType(String("Own::Level"),
                          std::vector<MemberSpec>{{"inner", makeArrayType(type)}});
  }
  type = typeOf<bool>();
}

TEST(NestedValues, ArraysEndOnAnyStack) {
  const ObjectPtr watched = Vantrel::createObject();
  Value value = makeValue(watched);
  for (int level = 0; level < 1000000; ++level) {
    value = makeArray(value.getType(), std::vector{value});
  }
  EXPECT_EQ(useCount(watched), 2U);
  value = makeValue(true);
  EXPECT_EQ(useCount(watched), 1U);
}

TEST(NestedValues, StructsAsDeepAsTypesGoAreMadeCopiedAndEnded) {
  const ObjectPtr watched = Vantrel::createObject();
  Value value = makeValue(watched);
  for (int level = 0; level < 256; ++level) {
    const MemberSpec members[] = {{"inner", value.getType()}, {"more", typeOf<String>()}};
    value = makeStruct(makeStructType(String("Own::Level"), members),
                       std::vector{value, makeValue(String("more"))});
  }
  EXPECT_EQ(useCount(watched), 2U);
  {
    const Value copy = Internal::copyValue(value.getType(), valueAddress(value));
    EXPECT_EQ(useCount(watched), 3U);
  }
  EXPECT_TRUE(StructValue(makeZero(value.getType()))["more"].getString() == "");
  value = makeValue(true);
  EXPECT_EQ(useCount(watched), 1U);
}

}  // namespace
}  // namespace Orvel
