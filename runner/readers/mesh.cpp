#include "readers/mesh.h"

#include <array>
#include <assimp/Importer.hpp>
#include <assimp/scene.h>
#include <assimp/version.h>
#include <bit>
#include <map>
#include <string_view>
#include <utility>

#include "host/value_types.h"
#include "readers/read_error.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "values/library_array.h"
#include "vantrel_geometry/geometry_builder.h"

namespace vtlcmd::runner {
namespace {

using Vantrel::Object;

Math::float3 toFloat3(const aiVector3D& vector) { return {{vector.x, vector.y, vector.z}}; }

/// The arrays of an object under construction, filled mesh by mesh.
class MeshBuilder {
 public:
  /// Adds the meshes of a node and of those below it, each where the node stands in the scene.
  void addNode(const aiScene& scene, const aiNode& node, const aiMatrix4x4& parent) {
    const aiMatrix4x4 transformation = parent * node.mTransformation;
    for (unsigned mesh = 0; mesh < node.mNumMeshes; ++mesh)
      addMesh(*scene.mMeshes[node.mMeshes[mesh]], transformation);
    for (unsigned child = 0; child < node.mNumChildren; ++child)
      addNode(scene, *node.mChildren[child], transformation);
  }

  ObjectPtr build() {
    Orvel::MutablePtr<Object> object = Vantrel::createObject();
    const std::uint64_t points = positions_.size;
    const std::uint64_t faces = faceSizes_.size;
    const std::uint64_t corners = cornerPoints_.size;
    const std::uint64_t vertices = faces > 0 ? corners : points;
    setCount(*object, "points", points);
    setCount(*object, "faces", faces);
    setCount(*object, "corners", corners);
    setData(*object, "position", std::move(positions_), points);
    setData(*object, "face_size", std::move(faceSizes_), faces);
    setData(*object, "corner_point", std::move(cornerPoints_), corners);
    setData(*object, "normal", std::move(normals_), vertices);
    setData(*object, "uv", std::move(uvs_), vertices);
    setData(*object, "color", std::move(colors_), vertices);
    return object;
  }

 private:
  void addMesh(const aiMesh& mesh, const aiMatrix4x4& transformation) {
    if (mesh.mNumFaces == 0) {
      for (unsigned vertex = 0; vertex < mesh.mNumVertices; ++vertex) {
        positions_.append(toFloat3(transformation * mesh.mVertices[vertex]));
        addAttributes(mesh, vertex, transformation);
      }
    }
    for (unsigned face = 0; face < mesh.mNumFaces; ++face) {
      const aiFace& corners = mesh.mFaces[face];
      faceSizes_.append(static_cast<std::int32_t>(corners.mNumIndices));
      for (unsigned corner = 0; corner < corners.mNumIndices; ++corner) {
        const unsigned vertex = corners.mIndices[corner];
        if (vertex >= mesh.mNumVertices) throw ReadError("a face has a corner at no vertex");
        cornerPoints_.append(pointAt(toFloat3(transformation * mesh.mVertices[vertex])));
        addAttributes(mesh, vertex, transformation);
      }
    }
  }

  std::int32_t pointAt(const Math::float3& position) {
    std::array<std::uint32_t, 3> key{};
    // Adding zero makes the two zeros one.
    for (std::size_t i = 0; i < key.size(); ++i)
      key[i] = std::bit_cast<std::uint32_t>(position.components[i] + 0.0F);
    const auto next = static_cast<std::int32_t>(positions_.size);
    const auto [found, isNew] = points_.try_emplace(key, next);
    if (isNew) positions_.append(position);
    return found->second;
  }

  void addAttributes(const aiMesh& mesh, unsigned vertex, const aiMatrix4x4& transformation) {
    if (mesh.HasNormals()) {
      aiVector3D normal = mesh.mNormals[vertex];
      if (!transformation.IsIdentity()) {
        aiMatrix3x3 rotation(transformation);
        normal = rotation.Inverse().Transpose() * normal;
        normal.NormalizeSafe();
      }
      normals_.append(toFloat3(normal));
    }
    if (mesh.HasTextureCoords(0)) {
      const aiVector3D& uv = mesh.mTextureCoords[0][vertex];
      uvs_.append({{uv.x, uv.y}});
    }
    if (mesh.HasVertexColors(0)) {
      const aiColor4D& color = mesh.mColors[0][vertex];
      colors_.append({{color.r, color.g, color.b, color.a}});
    }
  }

  static void setCount(Object& object, std::string_view name, std::uint64_t count) {
    Vantrel::Geometry::setComponentProperty(object, viewOf(name),
                                            static_cast<std::uint32_t>(count));
  }

  /// Leaves out data that the file doesn't have, or not for all of its meshes.
  template <typename T>
  static void setData(Object& object, std::string_view name, Orvel::Array<T> array,
                      std::uint64_t expected) {
    if (array.size != expected || expected == 0) return;
    Vantrel::Geometry::setDataProperty(object, viewOf(name), makeAny(shareArray(std::move(array))));
  }

  Orvel::Array<Math::float3> positions_;
  Orvel::Array<std::int32_t> faceSizes_;
  Orvel::Array<std::int32_t> cornerPoints_;
  Orvel::Array<Math::float3> normals_;
  Orvel::Array<Math::float2> uvs_;
  Orvel::Array<Math::float4> colors_;
  std::map<std::array<std::uint32_t, 3>, std::int32_t> points_;
};

}  // namespace

std::string meshReaderName() {
  return "Assimp " + std::to_string(aiGetVersionMajor()) + "." +
         std::to_string(aiGetVersionMinor());
}

ObjectPtr readMesh(const std::filesystem::path& file) {
  Assimp::Importer importer;
  const aiScene* scene = importer.ReadFile(fileText(file), 0);
  if (scene == nullptr || scene->mRootNode == nullptr) {
    std::string reason = importer.GetErrorString();
    if (reason.ends_with('.')) reason.pop_back();
    throw ReadError(fileText(file) + ": " + reason);
  }
  try {
    MeshBuilder builder;
    builder.addNode(*scene, *scene->mRootNode, aiMatrix4x4());
    return builder.build();
  } catch (const ReadError& error) {
    throw ReadError(fileText(file) + ": " + error.what());
  }
}

}  // namespace vtlcmd::runner
