#include "saving/ply_writer.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <ostream>
#include <stdexcept>
#include <type_traits>
#include <vector>

#include "saving/object_mesh.h"
#include "vtlcmd/host/value_types.h"
#include "vtlcmd/stand_in/value_factory.h"

namespace vtlcmd::runner {
namespace {

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

template <typename T>
auto bitsOf(const T& vector) {
  return std::bit_cast<std::array<std::uint32_t, T::componentCount>>(vector.components);
}

template <typename T>
bool sameBits(const std::vector<T>& elements, std::size_t a, std::size_t b) {
  return elements.empty() || bitsOf(elements[a]) == bitsOf(elements[b]);
}

/// The vertices of a file: the points, each with what one of its corners has, and a further vertex
/// for each corner that has something else.
class Vertices {
 public:
  explicit Vertices(const MeshData& mesh) : mesh_(mesh), vertices_(mesh.positions.size()) {
    for (std::size_t point = 0; point < vertices_.size(); ++point) {
      vertices_[point].point = point;
      // Without faces each point has its own.
      if (mesh.faceSizes.empty()) vertices_[point].source = point;
    }
    for (std::size_t corner = 0; corner < mesh.cornerPoints.size(); ++corner)
      ofCorners_.push_back(vertexFor(corner));
  }

  std::size_t size() const { return vertices_.size(); }
  std::size_t ofCorner(std::size_t corner) const { return ofCorners_[corner]; }
  /// Its point, and the place of its normal and so on; `none` for a point without corners.
  std::size_t point(std::size_t vertex) const { return vertices_[vertex].point; }
  std::size_t source(std::size_t vertex) const { return vertices_[vertex].source; }

 private:
  struct Vertex {
    std::size_t point;
    std::size_t source = none;
    /// Of the same point.
    std::size_t next = none;
  };

  std::size_t vertexFor(std::size_t corner) {
    auto vertex = static_cast<std::size_t>(mesh_.cornerPoints[corner]);
    while (vertices_[vertex].source != none && !areAlike(vertices_[vertex].source, corner)) {
      if (vertices_[vertex].next == none) {
        vertices_[vertex].next = vertices_.size();
        vertices_.push_back({vertices_[vertex].point});
      }
      vertex = vertices_[vertex].next;
    }
    if (vertices_[vertex].source == none) vertices_[vertex].source = corner;
    return vertex;
  }

  bool areAlike(std::size_t a, std::size_t b) const {
    return sameBits(mesh_.normals, a, b) && sameBits(mesh_.uvs, a, b) &&
           sameBits(mesh_.colors, a, b);
  }

  const MeshData& mesh_;
  std::vector<Vertex> vertices_;
  std::vector<std::size_t> ofCorners_;
};

template <typename T>
void put(std::ostream& stream, const T& value) {
  static_assert(std::is_trivially_copyable_v<T>);
  stream.write(reinterpret_cast<const char*>(&value), sizeof value);
}

/// Sizes of faces take one byte where they can.
bool hasLargeFaces(const MeshData& mesh) {
  return std::any_of(mesh.faceSizes.begin(), mesh.faceSizes.end(), [](std::int32_t size) {
    return size > std::numeric_limits<std::uint8_t>::max();
  });
}

void writeHeader(std::ostream& stream, const MeshData& mesh, std::size_t vertices) {
  stream << "ply\nformat binary_" << (std::endian::native == std::endian::little ? "little" : "big")
         << "_endian 1.0\nelement vertex " << vertices << '\n';
  const auto declare = [&stream](std::initializer_list<const char*> names) {
    for (const char* name : names) stream << "property float " << name << '\n';
  };
  declare({"x", "y", "z"});
  if (!mesh.normals.empty()) declare({"nx", "ny", "nz"});
  if (!mesh.uvs.empty()) declare({"s", "t"});
  if (!mesh.colors.empty()) declare({"red", "green", "blue", "alpha"});
  if (!mesh.faceSizes.empty()) {
    stream << "element face " << mesh.faceSizes.size() << "\nproperty list "
           << (hasLargeFaces(mesh) ? "int" : "uchar") << " int vertex_indices\n";
  }
  stream << "end_header\n";
}

void writeVertices(std::ostream& stream, const MeshData& mesh, const Vertices& vertices) {
  const auto putAt = [&stream]<typename T>(const std::vector<T>& elements, std::size_t place) {
    if (!elements.empty()) put(stream, place == none ? T{} : elements[place]);
  };
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    putAt(mesh.positions, vertices.point(i));
    putAt(mesh.normals, vertices.source(i));
    putAt(mesh.uvs, vertices.source(i));
    putAt(mesh.colors, vertices.source(i));
  }
}

void writeFaces(std::ostream& stream, const MeshData& mesh, const Vertices& vertices) {
  const bool isLarge = hasLargeFaces(mesh);
  std::size_t corner = 0;
  for (const std::int32_t size : mesh.faceSizes) {
    isLarge ? put(stream, size) : put(stream, static_cast<std::uint8_t>(size));
    for (std::int32_t i = 0; i < size; ++i)
      put(stream, static_cast<std::int32_t>(vertices.ofCorner(corner++)));
  }
}

}  // namespace

std::string writePly(std::ostream& stream, const Orvel::Value& value) {
  const auto& object = Orvel::valueAs<ObjectPtr>(value);
  if (!object) throw std::invalid_argument("there is no object");
  const MeshData mesh = meshOf(*object);
  const Vertices vertices(mesh);
  if (vertices.size() > std::numeric_limits<std::int32_t>::max())
    throw std::invalid_argument("the mesh has more points than an int counts");
  writeHeader(stream, mesh, vertices.size());
  writeVertices(stream, mesh, vertices);
  writeFaces(stream, mesh, vertices);
  if (vertices.size() == mesh.positions.size()) return {};
  return std::to_string(mesh.positions.size()) + " points became " +
         std::to_string(vertices.size()) +
         ", since corners of one point differ in 'normal', 'uv' or 'color'";
}

}  // namespace vtlcmd::runner
