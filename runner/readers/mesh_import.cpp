#include "readers/mesh_import.h"

#include <algorithm>
#include <assimp/Importer.hpp>
#include <assimp/scene.h>
#include <assimp/version.h>
#include <cstdint>
#include <limits>
#include <span>

#include "readers/folder_files.h"
#include "readers/read_error.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

namespace Math = Vantrel::Math;

Math::float3 toFloat3(const aiVector3D& vector) { return {{vector.x, vector.y, vector.z}}; }

/// The data of a scene, filled mesh by mesh.
class SceneReader {
 public:
  explicit SceneReader(const aiScene& scene) : scene_(scene) {
    const std::span meshes(scene.mMeshes, scene.mNumMeshes);
    hasFaces_ = std::any_of(meshes.begin(), meshes.end(),
                            [](const aiMesh* mesh) { return mesh->mNumFaces > 0; });
  }

  /// Adds the meshes of a node and of those below it.
  void addNode(const aiNode& node, const aiMatrix4x4& parent) {
    const aiMatrix4x4 transformation = parent * node.mTransformation;
    for (unsigned mesh = 0; mesh < node.mNumMeshes; ++mesh)
      addMesh(*scene_.mMeshes[node.mMeshes[mesh]], transformation);
    for (unsigned child = 0; child < node.mNumChildren; ++child)
      addNode(*node.mChildren[child], transformation);
  }

  MeshData take() { return std::move(data_); }

 private:
  void addMesh(const aiMesh& mesh, const aiMatrix4x4& transformation) {
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    const std::size_t first = data_.positions.size();
    if (mesh.mNumVertices > most - first) throw ReadError("it has more points than an int counts");
    for (unsigned vertex = 0; vertex < mesh.mNumVertices; ++vertex) {
      data_.positions.push_back(toFloat3(transformation * mesh.mVertices[vertex]));
      if (!hasFaces_) addAttributes(mesh, vertex, transformation);
    }
    for (unsigned face = 0; face < mesh.mNumFaces; ++face) {
      const std::span corners(mesh.mFaces[face].mIndices, mesh.mFaces[face].mNumIndices);
      data_.faceSizes.push_back(static_cast<std::int32_t>(corners.size()));
      for (const unsigned vertex : corners) {
        if (vertex >= mesh.mNumVertices) throw ReadError("a face has a corner at no vertex");
        data_.cornerPoints.push_back(static_cast<std::int32_t>(first + vertex));
        addAttributes(mesh, vertex, transformation);
      }
    }
  }

  void addAttributes(const aiMesh& mesh, unsigned vertex, const aiMatrix4x4& transformation) {
    if (mesh.HasNormals()) {
      aiVector3D normal = mesh.mNormals[vertex];
      if (!transformation.IsIdentity()) {
        aiMatrix3x3 rotation(transformation);
        normal = rotation.Inverse().Transpose() * normal;
        normal.NormalizeSafe();
      }
      data_.normals.push_back(toFloat3(normal));
    }
    if (mesh.HasTextureCoords(0)) {
      const aiVector3D& uv = mesh.mTextureCoords[0][vertex];
      data_.uvs.push_back({{uv.x, uv.y}});
    }
    if (mesh.HasVertexColors(0)) {
      const aiColor4D& color = mesh.mColors[0][vertex];
      data_.colors.push_back({{color.r, color.g, color.b, color.a}});
    }
  }

  const aiScene& scene_;
  bool hasFaces_ = false;
  MeshData data_;
};

}  // namespace

std::string meshReaderName() {
  return "Assimp " + std::to_string(aiGetVersionMajor()) + "." +
         std::to_string(aiGetVersionMinor());
}

MeshData importMesh(const std::filesystem::path& file, bool anywhere) {
  Assimp::Importer importer;
  // The importer owns its files.
  auto* const files = new FolderFiles(file, anywhere);
  importer.SetIOHandler(files);
  const aiScene* scene = importer.ReadFile(fileText(file), 0);
  // The library goes on without some of the files that it wants.
  if (!files->refusal().empty()) throw ReadError(files->refusal());
  if (scene == nullptr || scene->mRootNode == nullptr) {
    std::string reason = importer.GetErrorString();
    reason.erase(std::find_if(reason.begin(), reason.end(), [](char c) { return c == '\n'; }),
                 reason.end());
    if (reason.ends_with('.')) reason.pop_back();
    throw ReadError(reason.empty() ? "the mesh reader gives no reason" : reason);
  }
  SceneReader reader(*scene);
  reader.addNode(*scene->mRootNode, aiMatrix4x4());
  MeshData data = reader.take();
  if (data.positions.empty()) throw ReadError("there are no points in it");
  return data;
}

}  // namespace vtlcmd::runner
