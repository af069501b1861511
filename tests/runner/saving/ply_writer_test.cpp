#include "saving/ply_writer.h"

#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

#include "readers/mesh_import.h"
#include "runner/support/temporary_folder.h"
#include "text/library_text.h"
#include "values/library_array.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/geometry_builder.h"
#include "vtlcmd/stand_in/object_builder.h"

namespace vtlcmd::runner {
namespace {

using Math::float2;
using Math::float3;
using Math::float4;
using Indices = std::vector<std::int32_t>;

class PlyWriter : public testing::Test {
 protected:
  template <typename T>
  void set(const char* name, const std::vector<T>& elements) {
    Vantrel::Geometry::setDataProperty(
        *object_, viewOf(name),
        Orvel::toAny(arrayValue(
            generateArray<T>(elements.size(), [&](std::uint64_t i) { return elements[i]; }))));
  }

  void count(const char* name, std::uint32_t count) {
    Vantrel::Geometry::setComponentProperty(*object_, viewOf(name), count);
  }

  /// Two triangles and a square round four points, and a point that no face has.
  void setFaces() {
    set<float3>("position",
                {{{0, 0, 0}}, {{1, 0, 0}}, {{1, 1, 0.1F}}, {{0, 1, 1e-30F}}, {{9, 9, 9}}});
    set<std::int32_t>("face_size", {3, 3, 4});
    set<std::int32_t>("corner_point", {0, 1, 2, 0, 2, 3, 3, 2, 1, 0});
    count("points", 5);
    count("faces", 3);
    count("corners", 10);
  }

  std::string write(std::ostream& stream) const {
    return writePly(stream,
                    Orvel::makeValue<ObjectPtr>(Orvel::MutablePtr<Vantrel::Object>(object_)));
  }

  std::string refusal() const {
    try {
      std::ostringstream stream;
      write(stream);
    } catch (const std::invalid_argument& error) {
      return error.what();
    }
    return "accepted";
  }

  MeshData writeAndRead() {
    std::ostringstream stream;
    remark_ = write(stream);
    return importMesh(folder_.file("mesh.ply", stream.str()), false);
  }

  TemporaryFolder folder_;
  Orvel::MutablePtr<Vantrel::Object> object_ = Vantrel::createObject();
  std::string remark_;
};

class ReadBack : public PlyWriter {
 protected:
  void SetUp() override {
    if (meshReaderName() == "none") GTEST_SKIP() << "built without a mesh reader";
  }
};

TEST_F(ReadBack, FacesAndPoints) {
  setFaces();
  const MeshData mesh = writeAndRead();
  EXPECT_EQ(remark_, "");
  EXPECT_EQ(mesh.positions,
            (std::vector<float3>{
                {{0, 0, 0}}, {{1, 0, 0}}, {{1, 1, 0.1F}}, {{0, 1, 1e-30F}}, {{9, 9, 9}}}));
  EXPECT_EQ(mesh.faceSizes, (Indices{3, 3, 4}));
  EXPECT_EQ(mesh.cornerPoints, (Indices{0, 1, 2, 0, 2, 3, 3, 2, 1, 0}));
  EXPECT_TRUE(mesh.normals.empty());
}

TEST_F(ReadBack, CornersThatAgreeKeepTheirPoints) {
  setFaces();
  std::vector<float3> normals;
  std::vector<float2> uvs;
  std::vector<float4> colors;
  for (const int point : {0, 1, 2, 0, 2, 3, 3, 2, 1, 0}) {
    const auto number = static_cast<float>(point);
    normals.push_back({{number / 3, 1, -number}});
    uvs.push_back({{number / 7, 0.3F}});
    colors.push_back({{number / 9, 0.5F, 1, 0.25F}});
  }
  set("normal", normals);
  set("uv", uvs);
  set("color", colors);
  const MeshData mesh = writeAndRead();
  EXPECT_EQ(remark_, "");
  EXPECT_EQ(mesh.positions.size(), 5U);
  EXPECT_EQ(mesh.cornerPoints, (Indices{0, 1, 2, 0, 2, 3, 3, 2, 1, 0}));
  EXPECT_EQ(mesh.normals, normals);
  EXPECT_EQ(mesh.uvs, uvs);
  EXPECT_EQ(mesh.colors, colors);
}

TEST_F(ReadBack, CornersThatDifferGetPointsOfTheirOwn) {
  setFaces();
  std::vector<float3> normals(10, {{0, 0, 1}});
  normals[3] = normals[9] = {{0, 1, 0}};
  normals[4] = {{1, 0, 0}};
  set("normal", normals);
  const MeshData mesh = writeAndRead();
  EXPECT_EQ(remark_,
            "5 points became 7, since corners of one point differ in 'normal', 'uv' or 'color'");
  ASSERT_EQ(mesh.positions.size(), 7U);
  EXPECT_EQ(mesh.positions[5], mesh.positions[0]);
  EXPECT_EQ(mesh.positions[6], mesh.positions[2]);
  EXPECT_EQ(mesh.cornerPoints, (Indices{0, 1, 2, 5, 6, 3, 3, 2, 1, 5}));
  EXPECT_EQ(mesh.normals, normals);
}

TEST_F(ReadBack, PointsWithoutFaces) {
  const std::vector<float3> points{{{1, 2, 3}}, {{4, 5, 6}}};
  const std::vector<float4> colors{{{0.1F, 0.2F, 0.3F, 1}}, {{0.4F, 0.5F, 0.6F, 0}}};
  set("position", points);
  set("color", colors);
  const MeshData mesh = writeAndRead();
  EXPECT_EQ(mesh.positions, points);
  EXPECT_EQ(mesh.colors, colors);
  EXPECT_TRUE(mesh.faceSizes.empty());
}

TEST_F(ReadBack, FacesOfMoreCornersThanAByteCounts) {
  const Indices corners(300, 1);
  set<float3>("position", {{{0, 0, 0}}, {{1, 0, 0}}});
  set<std::int32_t>("face_size", {300});
  set("corner_point", corners);
  const MeshData mesh = writeAndRead();
  EXPECT_EQ(mesh.faceSizes, Indices{300});
  EXPECT_EQ(mesh.cornerPoints, corners);
}

TEST_F(PlyWriter, RefusesOtherPropertiesByName) {
  setFaces();
  set<float>("weight", {1});
  EXPECT_EQ(refusal(), "the property 'weight' has no place in the file");
}

TEST_F(PlyWriter, RefusesOtherComponentsByName) {
  setFaces();
  count("edges", 4);
  EXPECT_EQ(refusal(), "the property 'edges' has no place in the file");
}

TEST_F(PlyWriter, RefusesPropertiesOfOtherTypes) {
  setFaces();
  set<float3>("color", {{{1, 0, 0}}});
  EXPECT_EQ(refusal(), "the property 'color' holds no array<Math::float4>");
}

TEST_F(PlyWriter, RefusesWhatDoesntFitTogether) {
  EXPECT_EQ(refusal(), "the mesh has no points");
  setFaces();
  set<float2>("uv", {{{1, 0}}});
  EXPECT_EQ(refusal(), "the property 'uv' is for 1 elements, not 10");
  set("uv", std::vector<float2>(10));
  EXPECT_EQ(refusal(), "accepted");
  count("points", 4);
  EXPECT_EQ(refusal(), "the property 'points' is for 4 elements, not 5");
  set<std::int32_t>("face_size", {3, 3});
  EXPECT_EQ(refusal(), "the property 'corner_point' is for 10 elements, not 6");
  set<std::int32_t>("face_size", {3, -3, 10});
  EXPECT_EQ(refusal(), "the property 'face_size' holds -3");
  set<std::int32_t>("face_size", {3});
  set<std::int32_t>("corner_point", {0, 1, 5});
  EXPECT_EQ(refusal(), "the property 'corner_point' holds 5, which is no point");
  set<std::int32_t>("corner_point", {0, -1, 2});
  EXPECT_EQ(refusal(), "the property 'corner_point' holds -1, which is no point");
}

TEST(PlyWriterOfNothing, Refuses) {
  std::ostringstream stream;
  EXPECT_THROW(writePly(stream, Orvel::makeValue<ObjectPtr>(ObjectPtr())), std::invalid_argument);
  EXPECT_EQ(stream.str(), "");
}

}  // namespace
}  // namespace vtlcmd::runner
