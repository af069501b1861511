#include "readers/mesh.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "host/imports/vantrel_geometry.h"
#include "readers/read_error.h"
#include "text/library_text.h"

namespace vtlcmd::runner {
namespace {

bool hasReader() { return meshReaderName() != "none"; }

class Mesh : public testing::Test {
 protected:
  void SetUp() override {
    if (!hasReader()) GTEST_SKIP() << "built without a mesh reader";
  }

  ObjectPtr read(const std::string& name, const std::string& text) {
    const std::filesystem::path file = std::filesystem::path(testing::TempDir()) / name;
    std::ofstream(file, std::ios::binary) << text;
    files_.push_back(file);
    return readMesh(file);
  }

  ~Mesh() override {
    for (const std::filesystem::path& file : files_) std::filesystem::remove(file);
  }

 private:
  std::vector<std::filesystem::path> files_;
};

std::uint32_t countOf(const ObjectPtr& object, std::string_view name) {
  return Vantrel::Geometry::getElementCount(*object, viewOf(name));
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

TEST_F(Mesh, FacesShareTheirPoints) {
  const ObjectPtr object = read("square.obj",
                                "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nvt 0 0\nvt 1 1\n"
                                "vn 0 0 1\nvn 0 0 -1\nf 1/1/1 2/1/1 3/2/1\nf 1/1/2 3/2/2 4/1/2\n");
  EXPECT_EQ(countOf(object, "points"), 4U);
  EXPECT_EQ(countOf(object, "faces"), 2U);
  EXPECT_EQ(countOf(object, "corners"), 6U);
  EXPECT_EQ(dataOf<Math::float3>(object, "position"),
            (std::vector<Math::float3>{{{0, 0, 0}}, {{1, 0, 0}}, {{1, 1, 0}}, {{0, 1, 0}}}));
  EXPECT_EQ(dataOf<std::int32_t>(object, "face_size"), (std::vector<std::int32_t>{3, 3}));
  EXPECT_EQ(dataOf<std::int32_t>(object, "corner_point"),
            (std::vector<std::int32_t>{0, 1, 2, 0, 2, 3}));
  EXPECT_EQ(dataOf<Math::float3>(object, "normal")[3], (Math::float3{{0, 0, -1}}));
  EXPECT_EQ(dataOf<Math::float2>(object, "uv")[2], (Math::float2{{1, 1}}));
  EXPECT_TRUE(dataOf<Math::float4>(object, "color").empty());
}

TEST_F(Mesh, PlyWithColors) {
  const ObjectPtr object =
      read("triangle.ply",
           "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\n"
           "property float z\nproperty uchar red\nproperty uchar green\nproperty uchar blue\n"
           "element face 1\nproperty list uchar int vertex_index\nend_header\n"
           "0 0 0 255 0 0\n1 0 0 0 255 0\n0 1 0 0 0 255\n3 0 1 2\n");
  EXPECT_EQ(countOf(object, "points"), 3U);
  EXPECT_EQ(dataOf<Math::float4>(object, "color"),
            (std::vector<Math::float4>{{{1, 0, 0, 1}}, {{0, 1, 0, 1}}, {{0, 0, 1, 1}}}));
}

TEST_F(Mesh, StlJoinsTheCornersOfItsTriangles) {
  const ObjectPtr object = read("two.stl",
                                "solid two\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\n"
                                "vertex 1 0 0\nvertex 1 1 0\nendloop\nendfacet\n"
                                "facet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 1 0\n"
                                "vertex 0 1 0\nendloop\nendfacet\nendsolid two\n");
  EXPECT_EQ(countOf(object, "points"), 4U);
  EXPECT_EQ(countOf(object, "faces"), 2U);
}

TEST_F(Mesh, GltfNodesStandWhereTheSceneSaysSo) {
  const ObjectPtr object =
      read("moved.gltf",
           R"({"asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0]}],
      "nodes": [{"mesh": 0, "translation": [10, 0, 0], "scale": [2, 2, 2]}],
      "meshes": [{"primitives": [{"attributes": {"POSITION": 0}}]}],
      "accessors": [{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3",
                     "min": [0, 0, 0], "max": [1, 1, 0]}],
      "bufferViews": [{"buffer": 0, "byteLength": 36}],
      "buffers": [{"byteLength": 36, "uri": "data:application/octet-stream;base64,)"
           R"(AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAAAAAAAAgD8AAAAA"}]})");
  EXPECT_EQ(dataOf<Math::float3>(object, "position"),
            (std::vector<Math::float3>{{{10, 0, 0}}, {{12, 0, 0}}, {{10, 2, 0}}}));
}

TEST_F(Mesh, BrokenFilesAreNamed) {
  try {
    read("broken.ply", "no mesh at all");
    FAIL();
  } catch (const ReadError& error) {
    EXPECT_NE(std::string(error.what()).find("broken.ply: "), std::string::npos) << error.what();
  }
}

TEST(MeshWithoutReader, IsRefused) {
  if (hasReader()) GTEST_SKIP() << "built with a mesh reader";
  try {
    readMesh("some.obj");
    FAIL();
  } catch (const ReadError& error) {
    EXPECT_STREQ(error.what(), "some.obj: this program was built without a mesh reader");
  }
}

}  // namespace
}  // namespace vtlcmd::runner
