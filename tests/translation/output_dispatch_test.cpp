#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "support/given_table.h"
#include "support/test_host.h"
#include "support/type_samples.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestHost;
using Vantrel::Simulation::Time;

/// A value of an array type around an element type, empty.
Orvel::Value emptyArray(const char* name) {
  return Orvel::makeZero(Orvel::typeNamed({name, std::strlen(name)}));
}

class OutputDispatch : public ::testing::Test {
 protected:
  TestHost host_;
};

TEST_F(OutputDispatch, UnsupportedValueGetsAWarning) {
  EXPECT_FALSE(host_.getValue(Orvel::makeValue(Math::float2x2{}), "m"));
  EXPECT_THAT(host_.messages(),
              ElementsAre("progress Output port 'm' [Math::float2x2]",
                          "warning The TypeTranslation does not support getting a value of type "
                          "'Math::float2x2' for the Terminal output named 'm'."));
}

TEST_F(OutputDispatch, RowsWithoutReporterAreAsNoRows) {
  HandlerTable table;
  table.byName["int"].reporter = nullptr;
  table.byTag[&typeTag<std::int32_t, 0>] = nullptr;
  testing::giveTable(host_.translation, table);
  EXPECT_FALSE(host_.getAny(makeAny(std::int32_t{1}), "n"));
  EXPECT_THAT(host_.messages(), IsEmpty());
  EXPECT_FALSE(host_.getValue(Orvel::makeValue(std::int32_t{1}), "n"));
  EXPECT_THAT(host_.messages(),
              ElementsAre("progress Output port 'n' [int]",
                          "warning The TypeTranslation does not support getting a value of type "
                          "'int' for the Terminal output named 'n'."));
}

/// Of an Any that says it holds something of this tag.
const Orvel::Internal::TypeInfo* saidTag;
void sayTag(AnyOpArgs* args) {
  if (args->op == AnyOp::destroy) args->self->manager = nullptr;
  if (args->op == AnyOp::type) args->other = const_cast<Orvel::Internal::TypeInfo*>(saidTag);
}

TEST_F(OutputDispatch, TagsThatAreNearlyThoseOfTheTableAreNotInIt) {
  Any any;
  any.manager = &sayTag;
  forEachRow(registeredTypes, [&](const auto& row) {
    const std::string spelling(row.tagSpelling);
    const std::string start = spelling.substr(0, spelling.size() - 1);
    for (const std::string& similar : {spelling + "@", start, start + "$", start + "\x80"}) {
      for (std::uint32_t rank = 0; rank < registeredRanks; ++rank) {
        const auto tag = makeTag(similar, row.tagKind, rank);
        saidTag = &tag;
        EXPECT_FALSE(host_.getAny(any, "p")) << similar;
      }
    }
    for (const int kind : {row.tagKind + 1, 0xFF}) {
      const auto tag = makeTag(spelling, static_cast<std::uint8_t>(kind), 0);
      saidTag = &tag;
      EXPECT_FALSE(host_.getAny(any, "p")) << spelling;
    }
    for (const auto& tag : {makeTag(spelling, row.tagKind, registeredRanks),
                            makeTag(std::string_view(spelling).substr(0, 0), row.tagKind, 0)}) {
      saidTag = &tag;
      EXPECT_FALSE(host_.getAny(any, "p")) << spelling;
    }
  });
  EXPECT_THAT(host_.messages(), IsEmpty());
}

TEST_F(OutputDispatch, TagsAreReadByTheirLength) {
  Any any;
  any.manager = &sayTag;
  forEachRow(registeredTypes, [&](const auto& row) {
    for (const char* behind : {"$", "z"}) {
      const std::string longer = std::string(row.tagSpelling) + behind;
      const auto tag =
          makeTag(std::string_view(longer).substr(0, row.tagSpelling.size()), row.tagKind, 0);
      saidTag = &tag;
      EXPECT_TRUE(host_.getAny(any, "p")) << longer;
    }
  });
}

TEST_F(OutputDispatch, UnsupportedArrayIsNamedWholeThenByItsElement) {
  EXPECT_FALSE(host_.getValue(emptyArray("array<array<Math::float2x2>>"), "m"));
  EXPECT_THAT(host_.messages(),
              ElementsAre("progress Output port 'm' [array<array<Math::float2x2>>]",
                          "warning The TypeTranslation does not support getting a value of type "
                          "'Math::float2x2' for the Terminal output named 'm'."));
}

TEST_F(OutputDispatch, ListedRecordAndShortAreNeverReported) {
  EXPECT_FALSE(host_.getValue(Orvel::makeValue(Time{1, 0, 0, 1}), "t"));
  EXPECT_FALSE(host_.getValue(emptyArray("array<short>"), "s"));
  EXPECT_THAT(host_.messages(),
              ElementsAre("progress Output port 't' [Simulation::Time]",
                          "warning The TypeTranslation does not support getting a value of type "
                          "'Simulation::Time' for the Terminal output named 't'.",
                          "progress Output port 's' [array<short>]",
                          "warning The TypeTranslation does not support getting a value of type "
                          "'short' for the Terminal output named 's'."));
  EXPECT_FALSE(host_.getAny(makeAny(Time{1, 0, 0, 1}), "t"));
  EXPECT_EQ(host_.messages().size(), 4U) << "through an Any in silence";
}

TEST_F(OutputDispatch, UnsupportedAnyIsRefusedInSilence) {
  EXPECT_FALSE(host_.getAny(Any{}, "empty"));
  EXPECT_FALSE(host_.getAny(makeAny(testing::arrayOf<std::int16_t>({1})), "short"));
  EXPECT_THAT(host_.messages(), IsEmpty());
  EXPECT_TRUE(host_.logger.fallbackEntry.outputs.empty());
}

TEST_F(OutputDispatch, FourDeepArrayIsReportedAsAValueAlone) {
  using Rank4 = Orvel::Ptr<Orvel::Array<StoredArray<std::int32_t, 3>>>;
  const Rank4 array =
      testing::arrayOf<StoredArray<std::int32_t, 3>>({testing::nestedArray<std::int32_t, 3>(7)});
  EXPECT_TRUE(host_.getValue(Orvel::makeValue(array), "deep"));
  EXPECT_THAT(host_.messages(),
              ElementsAre("progress Output port 'deep': (array<array<array<array<int>>>>) \n"
                          "(1 out of 1 array<array<array<int>>>)[\n"
                          "\n"
                          "(1 out of 1 array<array<int>>)[\n"
                          "\n"
                          "(1 out of 1 array<int>)[\n"
                          "(1 int)\n"
                          "  {\n"
                          "     min: 7\n"
                          "     max: 7\n"
                          "     avg: 7\n"
                          "  } ]\n"
                          " ]\n"
                          " ]\n"));
  static constexpr auto rank4 = makeTag("H", 0, 4);
  EXPECT_FALSE(host_.getAny(makeTaggedAny<rank4>(array), "deep"));
  EXPECT_EQ(host_.messages().size(), 1U);
}

TEST_F(OutputDispatch, FiveDeepArraysGoByTheirClassAtTheLowestLevel) {
  const auto wrapped = [](Orvel::Value value) {
    for (int level = 0; level < 2; ++level) {
      value = Orvel::makeArray(value.getType(), std::array{value});
    }
    return value;
  };
  EXPECT_TRUE(host_.getValue(wrapped(Orvel::makeValue(testing::nestedArray<Orvel::String, 3>("a"))),
                             "texts"));
  EXPECT_TRUE(host_.getValue(wrapped(Orvel::makeValue(testing::nestedArray<Math::double2, 3>({}))),
                             "vectors"));
  EXPECT_THAT(
      host_.messages(),
      ElementsAre("progress Output port 'texts': (array<array<array<array<array<string>>>>>) \n"
                  "(1 out of 1 array<array<array<array<string>>>>)[\n"
                  "\n(1 out of 1 array<array<array<string>>>)[\n"
                  "\n(1 out of 1 array<array<string>>)[\n"
                  "\n(1 out of 1 array<string>)[\n"
                  "\n(1 out of 1 string)[\n"
                  "\"a\" ]\n ]\n ]\n ]\n ]\n",
                  "progress Output port 'vectors': "
                  "(array<array<array<array<array<Math::double2>>>>>) \n"
                  "(1 out of 1 array<array<array<array<Math::double2>>>>)[\n"
                  "\n(1 out of 1 array<array<array<Math::double2>>>)[\n"
                  "\n(1 out of 1 array<array<Math::double2>>)[\n"
                  "\n(1 out of 1 array<Math::double2>)[\n"
                  "{non supported array of Math::double2 } ]\n ]\n ]\n ]\n"));
}

TEST_F(OutputDispatch, NullDataIsToldOnTheErrorStreamAlone) {
  const std::string line = "[vtlcmd]  Critical: The TypeTranslation ValueData is null.\n";
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(host_.translation.getOutputAny(makeAny(true), nullptr));
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), line);
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(host_.translation.getOutputValue(Orvel::makeValue(true), nullptr));
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), line);
  EXPECT_THAT(host_.messages(), IsEmpty());
}

}  // namespace
}  // namespace vtlcmd
