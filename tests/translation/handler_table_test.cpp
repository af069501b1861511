#include "vtlcmd/translation/handler_table.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "support/type_samples.h"
#include "support/type_tests.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd {
namespace {

constexpr std::size_t typeCount = std::tuple_size_v<decltype(registeredTypes)>;

TEST(HandlerTable, HoldsEveryNameInAscendingOrder) {
  std::vector<std::string> names;
  for (const auto& [name, handlers] : sharedHandlerTable().byName) {
    names.emplace_back(name.c_str());
    EXPECT_NE(handlers.setter, nullptr);
    EXPECT_NE(handlers.reporter, nullptr);
  }
  EXPECT_EQ(names, testing::registeredNames());
}

TEST(HandlerTable, HoldsATagOfEachRankWithAReporterOfItsOwn) {
  const HandlerTable& table = sharedHandlerTable();
  EXPECT_EQ(table.byTag.size(), 4 * typeCount);
  std::vector<AnyReporter> reporters;
  for (const auto& [tag, reporter] : table.byTag) {
    ASSERT_NE(reporter, nullptr);
    EXPECT_EQ(std::count(reporters.begin(), reporters.end(), reporter), 0);
    reporters.push_back(reporter);
  }
  EXPECT_EQ(table.byName.size(), typeCount);
}

TEST(HandlerTable, ScalarsSortAheadOfAllArrays) {
  std::uint32_t rank = 0;
  for (const auto& [tag, reporter] : sharedHandlerTable().byTag) {
    EXPECT_GE(tag->rank, rank);
    rank = tag->rank;
  }
  EXPECT_EQ(rank, 3U);
}

TEST(HandlerTable, LacksEveryOtherName) {
  for (const char* name :
       {"short", "ushort", "char", "uchar", "Math::int2", "Math::float2x2", "Simulation::Time",
        "File::Project::SceneInfo", "array<int>", "Int", ""}) {
    EXPECT_EQ(sharedHandlerTable().byName.count(name), 0U) << name;
  }
}

template <typename T>
class HandlersOfRegisteredType : public ::testing::Test {};
TYPE_TEST_SUITE(HandlersOfRegisteredType, testing::RegisteredTestTypes);

TYPE_TEST(HandlersOfRegisteredType, AreFoundByAnotherModulesTagsUpToRank3) {
  const std::string spelling(valueType<TypeParam>().tagSpelling);
  const auto find = [&](std::uint32_t rank) {
    const auto tag = makeTag(spelling, valueType<TypeParam>().tagKind, rank);
    return sharedHandlerTable().byTag.count(&tag);
  };
  for (std::uint32_t rank = 0; rank < 4; ++rank) EXPECT_EQ(find(rank), 1U);
  EXPECT_EQ(find(4), 0U);
}

TYPE_TEST(HandlersOfRegisteredType, NeedTheKindOfTheirTag) {
  const auto otherKind = makeTag(valueType<TypeParam>().tagSpelling,
                                 static_cast<std::uint8_t>(2 - valueType<TypeParam>().tagKind), 0);
  EXPECT_EQ(sharedHandlerTable().byTag.count(&otherKind), 0U);
}

template <typename T>
class HandlersOfReportOnlyType : public ::testing::Test {};
TYPE_TEST_SUITE(HandlersOfReportOnlyType, testing::ReportOnlyTestTypes);

TYPE_TEST(HandlersOfReportOnlyType, HasNoReporter) {
  EXPECT_EQ(sharedHandlerTable().byTag.count(&typeTag<TypeParam, 1>), 0U);
}

TEST(HandlerTable, VoidAndRecordTagsAreAbsent) {
  const auto& byTag = sharedHandlerTable().byTag;
  EXPECT_EQ(byTag.count(&Orvel::Internal::TypeInfo::s_void), 0U);
  EXPECT_EQ(byTag.count(&typeTag<Vantrel::Simulation::Time, 0>), 0U);
  EXPECT_EQ(byTag.count(&typeTag<Vantrel::File::Project::SceneInfo, 0>), 0U);
}

TEST(HandlerTable, IsOneForAllThreads) {
  std::vector<const HandlerTable*> seen(8);
  std::vector<std::thread> threads;
  for (const HandlerTable*& table : seen) {
    threads.emplace_back([&table] { table = &sharedHandlerTable(); });
  }
  for (std::thread& thread : threads) thread.join();
  for (const HandlerTable* table : seen) EXPECT_EQ(table, &sharedHandlerTable());
}

}  // namespace
}  // namespace vtlcmd
