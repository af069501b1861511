#include "values/value_picture.h"

#include <gtest/gtest.h>
#include <limits>

#include "text/json.h"
#include "text/library_text.h"
#include "values/library_array.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/geometry_builder.h"

namespace vtlcmd::runner {
namespace {

using Math::double3;
using Math::float2;
using Math::float3;
using Math::float4;

template <typename T>
Orvel::Array<T> arrayOf(std::initializer_list<T> elements) {
  return generateArray<T>(elements.size(), [&](std::uint64_t i) { return elements.begin()[i]; });
}

template <typename T>
std::string pictureOf(const char* type, std::initializer_list<T> elements) {
  return valuePicture({type, 1}, arrayValue(arrayOf(elements)));
}

TEST(ValuePicture, NumbersHaveAHistogram) {
  EXPECT_EQ(pictureOf<std::int32_t>("int", {1, 3, 3}),
            R"({"histogram":{"low":1,"width":1,"counts":[1,0,2],"not_finite":0}})");
  EXPECT_EQ(pictureOf<bool>("bool", {true, false, true}),
            R"({"histogram":{"low":0,"width":1,"counts":[1,2],"not_finite":0}})");
  EXPECT_EQ(pictureOf<float>("float", {0.1F, std::numeric_limits<float>::quiet_NaN()}),
            R"({"histogram":{"low":0.1,"width":0,"counts":[1],"not_finite":1}})");
}

TEST(ValuePicture, VectorsArePoints) {
  EXPECT_EQ(pictureOf<float3>("Math::float3", {{{1, 0.1F, -2}}, {{4, 5, 6}}}),
            R"({"count":2,"points":[[1,0.1,-2],[4,5,6]]})");
  EXPECT_EQ(pictureOf<float2>("Math::float2", {{{1, 2}}}), R"({"count":1,"points":[[1,2]]})");
  EXPECT_EQ(pictureOf<float4>("Math::float4", {{{1, 2, 3, 4}}}),
            R"({"count":1,"points":[[1,2,3]]})");
  EXPECT_EQ(pictureOf<double3>("Math::double3", {{{1, 2, std::nan("")}}}),
            R"({"count":1,"points":[[1,2,"nan"]]})");
}

TEST(ValuePicture, OfManyPointsSomeAreTakenEvenly) {
  const auto json = nlohmann::json::parse(
      valuePicture({"Math::float2", 1}, arrayValue(generateArray<float2>(9000, [](std::uint64_t i) {
                     return float2{{static_cast<float>(i), 0}};
                   }))));
  EXPECT_EQ(json["count"], 9000);
  ASSERT_EQ(json["points"].size(), 3000U);
  EXPECT_EQ(json["points"][0][0], 0);
  EXPECT_EQ(json["points"][1][0], 3);
  EXPECT_EQ(json["points"][2999][0], 8997);
}

template <typename T>
Orvel::Value nested(std::initializer_list<std::initializer_list<T>> rows) {
  using Row = Orvel::Ptr<Orvel::Array<T>>;
  return arrayValue(generateArray<Row>(
      rows.size(), [&](std::uint64_t i) -> Row { return shareArray(arrayOf(rows.begin()[i])); }));
}

TEST(ValuePicture, LevelsCountAsOne) {
  EXPECT_EQ(valuePicture({"int", 2}, nested<std::int32_t>({{1, 2}, {}, {1}})),
            R"({"histogram":{"low":1,"width":1,"counts":[2,1],"not_finite":0}})");
  EXPECT_EQ(valuePicture({"Math::float2", 2}, nested<float2>({{{{1, 2}}}, {}, {{{3, 4}}}})),
            R"({"count":2,"points":[[1,2],[3,4]]})");
}

TEST(ValuePicture, AMeshHasThePointsOfItsPositions) {
  const Orvel::MutablePtr<Vantrel::Object> object = Vantrel::createObject();
  const auto picture = [&] {
    return valuePicture({"Object", 0},
                        Orvel::makeValue<ObjectPtr>(Orvel::MutablePtr<Vantrel::Object>(object)));
  };
  EXPECT_EQ(picture(), "");
  const Any positions = Orvel::toAny(arrayValue(arrayOf<float3>({{{1, 2, 3}}})));
  Vantrel::Geometry::setDataProperty(*object, viewOf("normal"), positions);
  EXPECT_EQ(picture(), "");
  Vantrel::Geometry::setDataProperty(*object, viewOf("position"), positions);
  EXPECT_EQ(picture(), R"({"count":1,"points":[[1,2,3]]})");
}

TEST(ValuePicture, OtherValuesHaveNone) {
  EXPECT_EQ(valuePicture({"int", 0}, Orvel::makeValue<std::int32_t>(1)), "");
  EXPECT_EQ(valuePicture({"Object", 0}, Orvel::makeValue<ObjectPtr>(ObjectPtr{})), "");
  EXPECT_EQ(pictureOf<std::int32_t>("int", {}), "");
  EXPECT_EQ(pictureOf<float2>("Math::float2", {}), "");
  EXPECT_EQ(pictureOf<Orvel::String>("string", {libraryText("a")}), "");
}

}  // namespace
}  // namespace vtlcmd::runner
