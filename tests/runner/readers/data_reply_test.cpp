#include "readers/data_reply.h"

#include <functional>
#include <gtest/gtest.h>
#include <sstream>

#include "readers/data_writer.h"
#include "readers/read_error.h"
#include "text/library_text.h"
#include "values/library_array.h"
#include "vtlcmd/host/imports/vantrel_geometry.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

std::string written(const std::function<void(DataWriter&)>& write) {
  std::ostringstream stream;
  DataWriter writer(stream);
  write(writer);
  return stream.str();
}

std::vector<DataValue> valuesIn(const std::string& reply, NpyForm form = {}) {
  MemorySource source({reinterpret_cast<const unsigned char*>(reply.data()), reply.size()});
  return parseReply(source, form);
}

std::string replyRefusal(const std::string& reply) {
  try {
    valuesIn(reply);
  } catch (const ReadError& error) {
    return error.what();
  }
  return "accepted";
}

MeshData triangle() {
  MeshData mesh;
  mesh.positions = {{{0, 0, 0}}, {{1, 0, 0}}, {{0, 1, 0}}, {{9, 9, 9}}};
  mesh.faceSizes = {3};
  mesh.cornerPoints = {0, 1, 2};
  mesh.uvs = {{{0, 0}}, {{1, 0}}, {{0, 1}}};
  // For some corners only.
  mesh.normals = {{{0, 0, 1}}};
  return mesh;
}

std::string triangleReply() {
  return written([](DataWriter& writer) {
    writer.writeMesh(triangle());
    writer.writeEnd();
  });
}

template <typename T>
std::vector<T> dataOf(const ObjectPtr& object, std::string_view name) {
  const auto property = Vantrel::Geometry::getDataGeoProperty(*object, viewOf(name));
  if (!property) return {};
  const Any data = property->propertyByKey(Vantrel::Geometry::sData);
  const auto* array = anyCast<Orvel::Ptr<Orvel::Array<T>>>(&data);
  if (array == nullptr) return {};
  return std::vector<T>((*array)->begin(), (*array)->end());
}

TEST(DataReply, MeshesArriveAsObjects) {
  const std::vector<DataValue> values = valuesIn(triangleReply());
  ASSERT_EQ(values.size(), 1U);
  EXPECT_EQ(values[0].name, "");
  const auto& object = Orvel::valueAs<ObjectPtr>(values[0].value);
  ASSERT_TRUE(object);
  const auto countOf = [&](std::string_view name) {
    return Vantrel::Geometry::getElementCount(*object, viewOf(name));
  };
  EXPECT_EQ(countOf("points"), 4U);
  EXPECT_EQ(countOf("faces"), 1U);
  EXPECT_EQ(countOf("corners"), 3U);
  EXPECT_EQ(dataOf<Math::float3>(object, "position"), triangle().positions);
  EXPECT_EQ(dataOf<std::int32_t>(object, "face_size"), triangle().faceSizes);
  EXPECT_EQ(dataOf<std::int32_t>(object, "corner_point"), triangle().cornerPoints);
  EXPECT_EQ(dataOf<Math::float2>(object, "uv"), triangle().uvs);
  EXPECT_TRUE(dataOf<Math::float3>(object, "normal").empty());
}

TEST(DataReply, WhatIsLeftOutIsTold) {
  const std::vector<DataValue> values = valuesIn(written([](DataWriter& writer) {
    MeshData mesh = triangle();
    mesh.leftOut = "2 lines";
    writer.writeMesh(mesh);
    writer.writeEnd();
  }));
  ASSERT_EQ(values.size(), 1U);
  EXPECT_EQ(values[0].warnings,
            (std::vector<std::string>{"left out: the normal, which only 1 of 3 corners have",
                                      "left out: 2 lines"}));
}

TEST(DataReply, ArraysArriveByName) {
  const std::vector<std::int16_t> numbers{1, -2, 3};
  const std::uint64_t shape[]{3};
  const std::string reply = written([&](DataWriter& writer) {
    for (const char* name : {"a", "b"})
      writer.writeArray(
          DataMessage::array, name, "i2", shape,
          {reinterpret_cast<const unsigned char*>(numbers.data()), numbers.size() * 2});
    writer.writeEnd();
  });
  const std::vector<DataValue> values = valuesIn(reply, {.widened = true});
  ASSERT_EQ(values.size(), 2U);
  EXPECT_EQ(values[0].name, "a");
  EXPECT_EQ(values[1].name, "b");
  ASSERT_TRUE(values[1].facts);
  EXPECT_EQ(describe(*values[1].facts), "int16, 3, widened to int");
  EXPECT_EQ(arrayIn<std::int32_t>(values[1].value)[1], -2);
}

TEST(DataReply, ErrorsAreThrown) {
  EXPECT_EQ(replyRefusal(written([](DataWriter& writer) { writer.writeError("no such luck"); })),
            "no such luck");
}

TEST(DataReply, NothingCutShortIsAccepted) {
  const std::string whole = triangleReply();
  for (std::size_t size = 0; size < whole.size(); ++size)
    EXPECT_NE(replyRefusal(whole.substr(0, size)), "accepted") << size;
}

TEST(DataReply, NonsenseIsRefused) {
  const std::string refusal = "what its reader says makes no sense";
  EXPECT_EQ(replyRefusal(written([](DataWriter& writer) { writer.writeEnd(); })), refusal);
  EXPECT_EQ(replyRefusal(std::string(13, '\0')), refusal);
  EXPECT_EQ(replyRefusal(std::string(100, '\xff')), refusal);
  // A payload longer than its property.
  EXPECT_EQ(replyRefusal(std::string("\1\0\0\0\0\5\0\0\0\0\0\0\0\1\0\0\0\0", 18)), refusal);
}

}  // namespace
}  // namespace vtlcmd::runner
