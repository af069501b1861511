#include "readers/mesh_import.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "readers/read_error.h"

namespace vtlcmd::runner {
namespace {

namespace Math = Vantrel::Math;
using Points = std::vector<Math::float3>;
using Indices = std::vector<std::int32_t>;

bool hasReader() { return meshReaderName() != "none"; }

class MeshImport : public testing::Test {
 protected:
  void SetUp() override {
    if (!hasReader()) GTEST_SKIP() << "built without a mesh reader";
    std::filesystem::create_directories(folder_ / "scene");
  }
  ~MeshImport() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path write(const std::string& name, const std::string& text) {
    const std::filesystem::path file = folder_ / "scene" / name;
    std::ofstream(file, std::ios::binary) << text;
    return file;
  }

  MeshData read(const std::string& name, const std::string& text) {
    return importMesh(write(name, text), false);
  }

  std::string meshRefusal(const std::string& name, const std::string& text) {
    try {
      read(name, text);
    } catch (const ReadError& error) {
      return error.what();
    }
    return "accepted";
  }

  std::filesystem::path folder_ = std::filesystem::path(testing::TempDir()) / "mesh_import_test";
};

TEST_F(MeshImport, PlyWithColors) {
  const MeshData mesh =
      read("gltfTriangle.ply",
           "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\n"
           "property float z\nproperty uchar red\nproperty uchar green\nproperty uchar blue\n"
           "element face 1\nproperty list uchar int vertex_index\nend_header\n"
           "0 0 0 255 0 0\n1 0 0 0 255 0\n0 1 0 0 0 255\n3 0 1 2\n");
  EXPECT_EQ(mesh.positions.size(), 3U);
  EXPECT_EQ(mesh.colors,
            (std::vector<Math::float4>{{{1, 0, 0, 1}}, {{0, 1, 0, 1}}, {{0, 0, 1, 1}}}));
}

TEST_F(MeshImport, PlyKeepsUnusedAndEqualPoints) {
  const MeshData mesh =
      read("points.ply",
           "ply\nformat ascii 1.0\nelement vertex 6\nproperty float x\nproperty float y\n"
           "property float z\nelement face 1\nproperty list uchar int vertex_index\nend_header\n"
           "9 9 9\n0 0 0\n1 0 0\n0 1 0\n0 0 0\n7 7 7\n3 3 2 1\n");
  EXPECT_EQ(mesh.positions,
            (Points{{{9, 9, 9}}, {{0, 0, 0}}, {{1, 0, 0}}, {{0, 1, 0}}, {{0, 0, 0}}, {{7, 7, 7}}}));
  EXPECT_EQ(mesh.cornerPoints, (Indices{3, 2, 1}));
}

TEST_F(MeshImport, StlHasThreePointsATriangle) {
  const MeshData mesh = read("two.stl",
                             "solid two\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\n"
                             "vertex 1 0 0\nvertex 1 1 0\nendloop\nendfacet\n"
                             "facet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 1 0\n"
                             "vertex 0 1 0\nendloop\nendfacet\nendsolid two\n");
  EXPECT_EQ(mesh.positions,
            (Points{{{0, 0, 0}}, {{1, 0, 0}}, {{1, 1, 0}}, {{0, 0, 0}}, {{1, 1, 0}}, {{0, 1, 0}}}));
  EXPECT_EQ(mesh.cornerPoints, (Indices{0, 1, 2, 3, 4, 5}));
}

/// A scene of one gltfTriangle, whose points stand in a buffer.
std::string gltf(const std::string& buffer) {
  return R"({"asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0]}],
      "nodes": [{"mesh": 0, "translation": [10, 0, 0], "scale": [2, 2, 2]}],
      "meshes": [{"primitives": [{"attributes": {"POSITION": 0}}]}],
      "accessors": [{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3",
                     "min": [0, 0, 0], "max": [1, 1, 0]}],
      "bufferViews": [{"buffer": 0, "byteLength": 36}],
      "buffers": [{"byteLength": 36, "uri": ")" +
         buffer + R"("}]})";
}

const Points gltfTriangle{{{10, 0, 0}}, {{12, 0, 0}}, {{10, 2, 0}}};

TEST_F(MeshImport, GltfNodesStandWhereTheSceneSaysSo) {
  EXPECT_EQ(read("moved.gltf", gltf("data:application/octet-stream;base64,"
                                    "AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAAAAAAAAgD8AAAAA"))
                .positions,
            gltfTriangle);
}

class MeshFolder : public MeshImport {
 protected:
  void SetUp() override {
    MeshImport::SetUp();
    if (!hasReader()) return;
    write("inside.bin", gltfTriangleBytes());
    std::ofstream(folder_ / "outside.bin", std::ios::binary) << gltfTriangleBytes();
  }

  static std::string gltfTriangleBytes() {
    const float numbers[9]{0, 0, 0, 1, 0, 0, 0, 1, 0};
    return {reinterpret_cast<const char*>(numbers), sizeof numbers};
  }
};

TEST_F(MeshFolder, FilesInsideAreRead) {
  EXPECT_EQ(read("scene.gltf", gltf("inside.bin")).positions, gltfTriangle);
}

TEST_F(MeshFolder, FilesOutsideAreRefused) {
  const std::string refusal = meshRefusal("scene.gltf", gltf("../outside.bin"));
  EXPECT_TRUE(refusal.starts_with("it names '") &&
              refusal.ends_with("../outside.bin', which is outside its folder "
                                "(--read-anywhere allows that)"))
      << refusal;
  EXPECT_NE(meshRefusal("scene.gltf", gltf((folder_ / "outside.bin").string())), "accepted");
}

TEST_F(MeshFolder, FilesOutsideAreReadWhenThatIsAllowed) {
  EXPECT_EQ(importMesh(write("scene.gltf", gltf("../outside.bin")), true).positions, gltfTriangle);
}

TEST_F(MeshFolder, LinksLeadNoFurther) {
  std::filesystem::create_symlink(folder_ / "outside.bin", folder_ / "scene" / "link.bin");
  EXPECT_TRUE(meshRefusal("scene.gltf", gltf("link.bin")).starts_with("it names '"));
}

TEST_F(MeshFolder, AMeshByALinkHasTheFolderOfBoth) {
  const std::filesystem::path scene = write("scene.gltf", gltf("../outside.bin"));
  std::filesystem::create_directory(folder_ / "links");
  std::filesystem::create_symlink(scene, folder_ / "links" / "scene.gltf");
  EXPECT_THROW(importMesh(folder_ / "links" / "scene.gltf", false), ReadError);
  write("scene.gltf", gltf("inside.bin"));
  std::filesystem::create_symlink(folder_ / "scene" / "inside.bin",
                                  folder_ / "links" / "inside.bin");
  EXPECT_EQ(importMesh(folder_ / "links" / "scene.gltf", false).positions, gltfTriangle);
}

TEST_F(MeshFolder, FoldersAreNoFiles) {
  std::filesystem::create_directory(folder_ / "scene" / "folder.bin");
  const std::string refusal = meshRefusal("scene.gltf", gltf("folder.bin"));
  EXPECT_TRUE(refusal.ends_with("folder.bin': it is a folder; only regular files are read"))
      << refusal;
}

TEST_F(MeshImport, BrokenFilesHaveAReason) {
  EXPECT_NE(meshRefusal("broken.ply", "no mesh at all"), "accepted");
  EXPECT_NE(meshRefusal("broken.ply", ""), "accepted");
}

TEST(MeshImportWithoutReader, IsRefused) {
  if (hasReader()) GTEST_SKIP() << "built with a mesh reader";
  try {
    importMesh("some.ply", false);
    FAIL();
  } catch (const ReadError& error) {
    EXPECT_STREQ(error.what(), "this program was built without a reader for such meshes");
  }
}

}  // namespace
}  // namespace vtlcmd::runner
