#include "vtlcmd/host/value_types.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "support/type_samples.h"

namespace vtlcmd {
namespace {

struct Spelling {
  std::string tag;
  int kind;
  bool operator==(const Spelling&) const = default;
};

template <typename List>
std::vector<std::pair<std::string, Spelling>> rowsOf(const List& list) {
  std::vector<std::pair<std::string, Spelling>> rows;
  forEachRow(list, [&](const auto& row) {
    rows.push_back({row.name, {std::string(row.tagSpelling), row.tagKind}});
  });
  return rows;
}

using Rows = std::vector<std::pair<std::string, Spelling>>;

TEST(ValueTypes, RegisteredTypesAreSpelledAsTheirHostsSpellThem) {
  EXPECT_EQ(rowsOf(registeredTypes), (Rows{{"bool", {"_N", 0}},
                                           {"float", {"M", 0}},
                                           {"double", {"N", 0}},
                                           {"int", {"H", 0}},
                                           {"uint", {"I", 0}},
                                           {"long", {"_J", 0}},
                                           {"ulong", {"_K", 0}},
                                           {"Math::float2", {"Ufloat2@Math@Vantrel@@", 0}},
                                           {"Math::float3", {"Ufloat3@Math@Vantrel@@", 0}},
                                           {"Math::float4", {"Ufloat4@Math@Vantrel@@", 0}},
                                           {"Math::double2", {"Udouble2@Math@Vantrel@@", 0}},
                                           {"Math::double3", {"Udouble3@Math@Vantrel@@", 0}},
                                           {"Math::double4", {"Udouble4@Math@Vantrel@@", 0}},
                                           {"Object", {"VObject@Vantrel@@", 2}},
                                           {"string", {"VString@Orvel@@", 0}}}));
}

TEST(ValueTypes, RecordsAndReportOnlyTypesAreSpelledAsTheirHostsSpellThem) {
  EXPECT_EQ(rowsOf(inputOnlyTypes),
            (Rows{{"Simulation::Time", {"UTime@Simulation@Vantrel@@", 0}},
                  {"File::Project::SceneInfo", {"USceneInfo@Project@File@Vantrel@@", 0}}}));
  EXPECT_EQ(rowsOf(reportOnlyTypes), (Rows{{"signed char", {"C", 0}},
                                           {"unsigned char", {"E", 0}},
                                           {"short", {"F", 0}},
                                           {"ushort", {"G", 0}},
                                           {"Math::int2", {"Uint2@Math@Vantrel@@", 0}},
                                           {"Math::int3", {"Uint3@Math@Vantrel@@", 0}},
                                           {"Math::int2x2", {"Uint2x2@Math@Vantrel@@", 0}},
                                           {"Math::int2x3", {"Uint2x3@Math@Vantrel@@", 0}},
                                           {"Math::short2", {"Ushort2@Math@Vantrel@@", 0}},
                                           {"Math::short3", {"Ushort3@Math@Vantrel@@", 0}},
                                           {"Math::short2x2", {"Ushort2x2@Math@Vantrel@@", 0}},
                                           {"Math::short2x3", {"Ushort2x3@Math@Vantrel@@", 0}},
                                           {"Math::uchar3", {"Uuchar3@Math@Vantrel@@", 0}},
                                           {"Math::uchar4", {"Uuchar4@Math@Vantrel@@", 0}},
                                           {"Math::float2x2", {"Ufloat2x2@Math@Vantrel@@", 0}},
                                           {"Math::float2x3", {"Ufloat2x3@Math@Vantrel@@", 0}},
                                           {"Math::float3x3", {"Ufloat3x3@Math@Vantrel@@", 0}},
                                           {"Math::float4x4", {"Ufloat4x4@Math@Vantrel@@", 0}},
                                           {"Math::double2x2", {"Udouble2x2@Math@Vantrel@@", 0}},
                                           {"Math::double2x3", {"Udouble2x3@Math@Vantrel@@", 0}},
                                           {"Math::double3x3", {"Udouble3x3@Math@Vantrel@@", 0}},
                                           {"Math::double4x4", {"Udouble4x4@Math@Vantrel@@", 0}}}));
}

using Vantrel::Math::Matrix;
using Vantrel::Math::Vector;

/// What the rows of a list store, in order.
template <typename List>
struct StoredOf;
template <typename... Rows>
struct StoredOf<const std::tuple<Rows...>> {
  using Types = std::tuple<typename Rows::Type...>;
};

static_assert(
    std::is_same_v<StoredOf<decltype(registeredTypes)>::Types,
                   std::tuple<bool, float, double, std::int32_t, std::uint32_t, std::int64_t,
                              std::uint64_t, Vector<float, 2>, Vector<float, 3>, Vector<float, 4>,
                              Vector<double, 2>, Vector<double, 3>, Vector<double, 4>,
                              Orvel::Ptr<Vantrel::Object>, Orvel::String>>);
static_assert(
    std::is_same_v<StoredOf<decltype(inputOnlyTypes)>::Types,
                   std::tuple<Vantrel::Simulation::Time, Vantrel::File::Project::SceneInfo>>);
static_assert(
    std::is_same_v<
        StoredOf<decltype(reportOnlyTypes)>::Types,
        std::tuple<std::int8_t, std::uint8_t, std::int16_t, std::uint16_t, Vector<std::int32_t, 2>,
                   Vector<std::int32_t, 3>, Matrix<std::int32_t, 2, 2>, Matrix<std::int32_t, 2, 3>,
                   Vector<std::int16_t, 2>, Vector<std::int16_t, 3>, Matrix<std::int16_t, 2, 2>,
                   Matrix<std::int16_t, 2, 3>, Vector<std::uint8_t, 3>, Vector<std::uint8_t, 4>,
                   Matrix<float, 2, 2>, Matrix<float, 2, 3>, Matrix<float, 3, 3>,
                   Matrix<float, 4, 4>, Matrix<double, 2, 2>, Matrix<double, 2, 3>,
                   Matrix<double, 3, 3>, Matrix<double, 4, 4>>>);

TEST(ValueTypes, NameTableKeepsItsOrder) {
  const std::vector<std::string> names(typeNames.begin(), typeNames.end());
  EXPECT_EQ(names, (std::vector<std::string>{
                       "bool", "float", "double", "int", "uint", "long", "ulong", "short", "ushort",
                       "Math::float2", "Math::float3", "Math::float4", "Math::double2",
                       "Math::double3", "Math::double4", "string", "Object"}));
}

template <typename T>
class RegisteredTagTest : public ::testing::Test {};
TYPED_TEST_SUITE(RegisteredTagTest, testing::RegisteredTestTypes);

TYPED_TEST(RegisteredTagTest, FourTagsDifferInRankAlone) {
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
