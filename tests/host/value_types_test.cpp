#include "vtlcmd/host/value_types.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <type_traits>

#include "support/type_samples.h"
#include "support/type_tests.h"

namespace vtlcmd {
namespace {

using testing::TestTypesOf;

template <typename Row>
void expectNameAndTag(const Row& row, const auto& expected) {
  EXPECT_STREQ(row.name, expected.name);
  EXPECT_EQ(row.tagSpelling, expected.tag.spelling);
  EXPECT_EQ(row.tagKind, expected.tag.kind);
}

/// Whether two lists are of the same types in the same order.
template <typename List, typename OtherList>
constexpr bool sameTypes =
    std::is_same_v<typename TestTypesOf<std::remove_const_t<List>>::Types,
                   typename TestTypesOf<std::remove_const_t<OtherList>>::Types>;

static_assert(sameTypes<decltype(registeredTypes), decltype(testing::registeredRows)>);
static_assert(sameTypes<decltype(inputOnlyTypes), decltype(testing::inputOnlyRows)>);
static_assert(sameTypes<decltype(reportOnlyTypes), decltype(testing::reportOnlyRows)>);

TEST(ValueTypes, RegisteredTypesAreAsTheirHostsExpectThem) {
  forEachRow(testing::registeredRows, []<typename T>(const testing::RegisteredRow<T>& expected) {
    const RegisteredType<T>& row = valueType<T>();
    SCOPED_TRACE(expected.name);
    expectNameAndTag(row, expected);
    EXPECT_EQ(row.components, expected.components);
    EXPECT_EQ(row.arrayClass, expected.arrayClass);
    EXPECT_STREQ(row.parseErrorEnd, expected.parseErrorEnd);
    EXPECT_EQ(row.reportPlace, expected.reportPlace);
    EXPECT_EQ(storedInPlace<T>, expected.isInPlace);
  });
}

TEST(ValueTypes, RecordsAreAsTheirHostsExpectThem) {
  forEachRow(testing::inputOnlyRows, []<typename T>(const testing::InputOnlyRow<T>& expected) {
    SCOPED_TRACE(expected.name);
    expectNameAndTag(valueType<T>(), expected);
    EXPECT_FALSE(storedInPlace<T>);
  });
}

TEST(ValueTypes, ReportOnlyTypesAreAsTheirHostsExpectThem) {
  forEachRow(testing::reportOnlyRows, []<typename T>(const testing::ReportOnlyRow<T>& expected) {
    const ReportOnlyType<T>& row = valueType<T>();
    SCOPED_TRACE(expected.name);
    expectNameAndTag(row, expected);
    EXPECT_EQ(row.arrayClass, expected.arrayClass);
    EXPECT_EQ(row.reportPlace, expected.reportPlace);
  });
}

template <typename T>
class RegisteredTagTest : public ::testing::Test {};
TYPE_TEST_SUITE(RegisteredTagTest, testing::RegisteredTestTypes);

TYPE_TEST(RegisteredTagTest, FourTagsDifferInRankAlone) {
  const Orvel::Internal::TypeInfo* tags[] = {&typeTag<TypeParam, 0>, &typeTag<TypeParam, 1>,
                                             &typeTag<TypeParam, 2>, &typeTag<TypeParam, 3>};
  for (std::uint32_t rank = 0; rank < 4; ++rank) {
    EXPECT_EQ(std::string_view(tags[rank]->name, tags[rank]->length),
              valueType<TypeParam>().tagSpelling);
    EXPECT_EQ(tags[rank]->kind, valueType<TypeParam>().tagKind);
    EXPECT_EQ(tags[rank]->rank, rank);
    EXPECT_EQ(tags[rank]->unique, 0);
    EXPECT_EQ(tags[rank]->reserved, 0U);
  }
}

template <typename Stored>
concept Castable = requires(const Any* any) {
  anyCast<Stored>(any);
};

static_assert(Castable<std::int32_t> && Castable<StoredArray<std::int32_t, 3>>);
static_assert(!Castable<StoredArray<std::int32_t, 4>>, "no tag of rank 4");
static_assert(Castable<StoredArray<std::int16_t, 1>>);
static_assert(!Castable<std::int16_t> && !Castable<StoredArray<std::int16_t, 2>>,
              "report-only types have a tag at rank 1 alone");
static_assert(Castable<Vantrel::Simulation::Time>);
static_assert(!Castable<StoredArray<Vantrel::Simulation::Time, 1>>);
static_assert(!Castable<std::string>, "an unlisted type");

}  // namespace
}  // namespace vtlcmd
