#include "vtlcmd/object_report/object_report.h"

#include <gtest/gtest.h>
#include <map>
#include <new>
#include <string>
#include <tuple>
#include <vector>

#include "support/allocation_count.h"
#include "support/built_text.h"
#include "support/scoped_locale.h"
#include "support/text_room.h"
#include "support/type_samples.h"
#include "support/type_tests.h"
#include "support/watched_array.h"
#include "vtlcmd/host/imports/vantrel_geometry.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/output/statistics/array_statistics.h"
#include "vtlcmd/stand_in/geometry_builder.h"
#include "vtlcmd/stand_in/object_builder.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd {
namespace {

using testing::arrayOf;
using testing::builtText;

std::string reportOf(const Orvel::Ptr<const Vantrel::Object>& object) {
  return builtText([&](TextBuilder& text) { objectReport(text, object); });
}
std::string reportFromAny(const Any& value) {
  return builtText([&](TextBuilder& text) { objectReportFromAny(text, value); });
}
std::string reportFromValue(const Orvel::Value& value) {
  return builtText([&](TextBuilder& text) { objectReportFromValue(text, value); });
}

Orvel::StringView view(const char* text) { return {text, std::char_traits<char>::length(text)}; }

class ObjectReport : public ::testing::Test {
 protected:
  void addComponent(const char* name, std::uint32_t count) {
    Vantrel::Geometry::setComponentProperty(*object_, view(name), count);
  }
  template <typename T>
  void addData(const char* name, const std::vector<T>& elements) {
    addAny(name, makeAny(arrayOf<T>(elements)));
  }
  void addAny(const char* name, const Any& any) {
    Vantrel::Geometry::setDataProperty(*object_, view(name), any);
  }
  std::string report() { return reportOf(object_); }

  ObjectPtr object_ = Vantrel::createObject();
};

constexpr const char* nullReport = "{\n  No object produced, verify your inputs.\n}";

TEST_F(ObjectReport, WorkedText) {
  addComponent("pieces", 3);
  addData<std::int32_t>("id", {1, 2, 6});
  addData<Orvel::String>("label", {"a", "b"});
  EXPECT_EQ(report(),
            "{\n"
            "  pieces: count: 3\n"
            "  id: (3 int)\n"
            "  {\n"
            "     min: 1\n"
            "     max: 6\n"
            "     avg: 3\n"
            "  }\n"
            "  label: {non supported Data Geo Property}\n"
            "}");
}

TEST_F(ObjectReport, ObjectWithoutPropertiesIsTwoBraces) { EXPECT_EQ(report(), "{\n}"); }

TEST_F(ObjectReport, NullObjectHasATextOfItsOwn) {
  EXPECT_EQ(reportOf({}), nullReport);
  EXPECT_EQ(reportFromAny(makeAny(ObjectPtr{})), nullReport);
  EXPECT_EQ(reportFromAny(Any{}), nullReport);
  EXPECT_EQ(reportFromAny(makeAny(std::int32_t{5})), nullReport);
  EXPECT_EQ(reportFromAny(makeAny(arrayOf<ObjectPtr>({object_}))), nullReport);
  EXPECT_EQ(reportFromValue(Orvel::makeValue(ObjectPtr{})), nullReport);
}

TEST_F(ObjectReport, ComponentsStandBeforeDataEachInTheLibrarysOrder) {
  addData<float>("z", {1});
  addComponent("faces", 4294967295);
  addData<float>("a", {2});
  addComponent("corners", 0);
  EXPECT_EQ(report(),
            "{\n"
            "  faces: count: 4294967295\n"
            "  corners: count: 0\n"
            "  z: (1 float)\n  {\n     min: 1\n     max: 1\n     avg: 1\n  }\n"
            "  a: (1 float)\n  {\n     min: 2\n     max: 2\n     avg: 2\n  }\n"
            "}");
}

TEST_F(ObjectReport, NumbersFollowTheGlobalLocale) {
  addComponent("faces", 4294967295);
  addData<std::uint16_t>("s", {65535});
  const testing::GroupingLocale locale;
  EXPECT_EQ(report(),
            "{\n"
            "  faces: count: 4.294.967.295\n"
            "  s: (1 ushort)\n  {\n     min: 65.535\n     max: 65.535\n     avg: 65.535\n  }\n"
            "}");
}

TEST_F(ObjectReport, PropertiesThatAreNoGeometryAreNotReported) {
  Vantrel::setProperty(*object_, view("note"), makeAny(Orvel::String("text")));
  Vantrel::setProperty(*object_, view("child"), makeAny(ObjectPtr(Vantrel::createObject())));
  EXPECT_EQ(report(), "{\n}");
}

TEST_F(ObjectReport, EmptyArrayPrintsItsBlockInTheEmptyForm) {
  addData<std::int16_t>("s", {});
  addData<bool>("b", {});
  EXPECT_EQ(report(),
            "{\n"
            "  s: (0 short)\n  {\nempty array...  }\n"
            "  b:  (0 bool)\n  {\nempty array...  }\n"
            "}");
}

TEST_F(ObjectReport, UnknownValuesPrintNothingAndTheRestFollows) {
  addAny("missing", Any{});
  addAny("scalar", makeAny(1.5F));
  addAny("nested", makeAny(testing::nestedArray<float, 2>(1)));
  addAny("objects", makeAny(arrayOf<ObjectPtr>({object_})));
  static constexpr auto foreign = makeTag("UForeign@@", 0, 1);
  addAny("foreign", makeTaggedAny<foreign>(1));
  addData<std::uint16_t>("last", {65535, 1});
  EXPECT_EQ(report(),
            "{\n"
            "  last: (2 ushort)\n  {\n     min: 1\n     max: 65535\n     avg: 0\n  }\n"
            "}");
  // The object holds itself through that array; only an empty value lets it end.
  addAny("objects", Any{});
}

TEST_F(ObjectReport, ReadsAlikeFromAnyAndFromValueAndLeavesTheObjectAlone) {
  addComponent("pieces", 3);
  const auto array = arrayOf<double>({1, 2});
  addAny("weight", makeAny(array));
  const auto objectUses = Orvel::useCount(object_);
  const auto arrayUses = Orvel::useCount(array);
  EXPECT_EQ(reportFromAny(makeAny(object_)), report());
  EXPECT_EQ(reportFromValue(Orvel::makeValue(object_)), report());
  EXPECT_EQ(Orvel::useCount(object_), objectUses);
  EXPECT_EQ(Orvel::useCount(array), arrayUses);
}

std::vector<std::string> askedFor;

/// The manager of a value that is of no type and remembers what it is asked to be.
void rememberCasts(AnyOpArgs* args) {
  if (args->op == AnyOp::destroy) args->self->manager = nullptr;
  if (args->op != AnyOp::cast) return;
  const auto& tag = *static_cast<const Orvel::Internal::TypeInfo*>(args->other);
  askedFor.push_back(std::to_string(tag.rank) + " " + std::string(tag.name, tag.length));
  args->result = nullptr;
}

TEST(DataPropertyOfNoType, IsAskedForEachElementTypeInTheOrderOfThePlaces) {
  std::map<std::size_t, std::string> byPlace;
  forEachRow(std::tuple_cat(testing::registeredRows, testing::reportOnlyRows),
             [&](const auto& row) {
               if (row.reportPlace != 0)
                 byPlace[row.reportPlace] = "1 " + std::string(row.tag.spelling);
             });
  std::vector<std::string> expected;
  for (const auto& [place, asked] : byPlace) expected.push_back(asked);
  Any value;
  value.manager = &rememberCasts;
  askedFor.clear();
  TextBuilder text(0);
  EXPECT_FALSE(printDataProperty(value, text, "p"));
  EXPECT_EQ(askedFor, expected);
  EXPECT_EQ(text.text(), "");
}

TEST_F(ObjectReport, GivesBackWhatItUses) {
  addComponent("pieces", 3);
  addData<float>("weight", {1});
  const auto components = Vantrel::Geometry::getComponentGeoPropPrototype();
  const auto data =
      Vantrel::Geometry::getDataGeoPropPrototype(Vantrel::Geometry::sGenericDataGeoProp);
  const auto property = Vantrel::Geometry::getDataGeoProperty(*object_, view("weight"));
  const std::vector<std::uint64_t> before{Orvel::useCount(components), Orvel::useCount(data),
                                          Orvel::useCount(property)};
  report();
  EXPECT_EQ((std::vector<std::uint64_t>{Orvel::useCount(components), Orvel::useCount(data),
                                        Orvel::useCount(property)}),
            before);
}

TEST_F(ObjectReport, UsesOfAnyAndOfValueAreGivenBack) {
  for (const bool counted : {true, false}) {
    testing::WatchedBlock block;
    {
      const ObjectPtr object(object_.get(), counted ? &block : nullptr);
      EXPECT_EQ(reportFromAny(makeAny(object)), "{\n}");
      EXPECT_EQ(reportFromValue(Orvel::makeValue(object)), "{\n}");
      EXPECT_EQ(block.useCount, 1U);
      EXPECT_EQ(block.ends, 0);
    }
    EXPECT_EQ(block.ends, counted ? 1 : 0);
  }
}

#ifndef _WIN32
// There each library has allocation functions of its own, and only the program's are counted.
TEST_F(ObjectReport, NothingStaysInUseBehindIt) {
  EXPECT_EQ(testing::blocksLeftBy([&] { report(); }), 0);
  addComponent("a component whose name takes memory of its own", 3);
  addComponent("another component whose name takes memory of its own", 4);
  addComponent("pieces", 3);
  EXPECT_EQ(testing::blocksLeftBy([&] { report(); }), 0);
  addData<float>("a property whose name takes memory of its own", {1});
  addData<float>("another property whose name takes memory of its own", {1});
  EXPECT_EQ(testing::blocksLeftBy([&] { report(); }), 0);
}

TEST_F(ObjectReport, NothingStaysInUseWhicheverAllocationFails) {
  addComponent("a component whose name takes memory of its own", 3);
  addComponent("another component whose name takes memory of its own", 4);
  addComponent("pieces", 3);
  addData<float>("a property whose name takes memory of its own", {1});
  addData<float>("another property whose name takes memory of its own", {1});
  const auto property = Vantrel::Geometry::getDataGeoProperty(
      *object_, view("a property whose name takes memory of its own"));
  const auto uses = Orvel::useCount(property);
  bool failed = true;
  for (std::size_t successes = 0; failed; ++successes) {
    const std::ptrdiff_t before = testing::blocksInUse();
    std::size_t left = successes;
    testing::watchAllocations(
        [](void* counted) {
          if ((*static_cast<std::size_t*>(counted))-- == 0) throw std::bad_alloc();
        },
        &left);
    try {
      report();
      failed = false;
    } catch (const std::bad_alloc&) {
    }
    testing::watchAllocations(nullptr, nullptr);
    EXPECT_EQ(testing::blocksInUse(), before) << "after " << successes;
    EXPECT_EQ(Orvel::useCount(property), uses) << "after " << successes;
  }
}
#endif

TEST_F(ObjectReport, AnyRoomWillDo) {
  addComponent("pieces", 3);
  addComponent("faces", 4);
  addData<float>("weight", {1});
  addData<Orvel::String>("label", {"a"});
  testing::expectAnyRoomWillDo([&](TextBuilder& text) { objectReport(text, object_); });
  testing::expectAnyRoomWillDo([](TextBuilder& text) { objectReport(text, {}); });
}

template <typename T>
class DataProperty : public ::testing::Test {
 protected:
  static std::pair<bool, std::string> print(const Any& value) {
    TextBuilder text(0);
    const bool printed = printDataProperty(value, text, "p");
    return {printed, text.text()};
  }

  /// Of an array of zeros, or of none.
  static std::string block(std::size_t count) {
    const std::string head = std::string("  p: ") + (std::is_same_v<T, bool> ? " (" : "(");
    const std::string start = head + std::to_string(count) + " " + valueType<T>().name + ")\n  {\n";
    if (count == 0) return start + "empty array...  }\n";
    const std::string zero = zeroText();
    return start + "     min: " + zero + "\n     max: " + zero + "\n     avg: " + zero + "\n  }\n";
  }
  static std::string zeroText() {
    if constexpr (requires { T::componentCount; }) {
      std::string text = "{0f";
      for (std::size_t i = 1; i < T::componentCount; ++i) text += ", 0f";
      return text + "}";
    } else {
      return "0";
    }
  }
};

TYPE_TEST_SUITE(DataProperty, testing::ElementTestTypes);

TYPE_TEST(DataProperty, IsSummarisedUnsupportedOrPassedOverByItsElementType) {
  using T = TypeParam;
  const auto [printed, text] = this->print(makeAny(arrayOf<T>({T{}})));
  if constexpr (std::is_same_v<T, ObjectPtr>) {
    EXPECT_FALSE(printed);
    EXPECT_EQ(text, "");
  } else if constexpr (Summarised<T>) {
    EXPECT_TRUE(printed);
    EXPECT_EQ(text, this->block(1));
    EXPECT_EQ(this->print(makeAny(arrayOf<T>({}))), std::pair(true, this->block(0)));
  } else {
    EXPECT_FALSE(printed);
    EXPECT_EQ(text, "  p: {non supported Data Geo Property}\n");
  }
}

TYPE_TEST(DataProperty, GivesUsesOfItsArrayBack) {
  testing::expectUsesGivenBack(
      TypeParam{}, [&](const StoredArray<TypeParam, 1>& array) { this->print(makeAny(array)); });
}

TYPE_TEST(DataProperty, AnyRoomWillDo) {
  for (const Any& any :
       {makeAny(arrayOf<TypeParam>({TypeParam{}})), makeAny(arrayOf<TypeParam>({}))}) {
    testing::expectAnyRoomWillDo([&](TextBuilder& text) { printDataProperty(any, text, "p"); });
  }
}

}  // namespace
}  // namespace vtlcmd
