#include <algorithm>
#include <array>
#include <cmath>

#include "nodes/families.h"
#include "nodes/integer_argument.h"
#include "nodes/object_data.h"
#include "nodes/random_numbers.h"
#include "values/library_array.h"

namespace vtlcmd::runner::node_families {
namespace {

using Position = std::array<double, 3>;
using Triangle = std::array<Position, 3>;

Position minus(const Position& a, const Position& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

double areaOf(const Triangle& triangle) {
  const Position u = minus(triangle[1], triangle[0]);
  const Position v = minus(triangle[2], triangle[0]);
  const double x = u[1] * v[2] - u[2] * v[1];
  const double y = u[2] * v[0] - u[0] * v[2];
  const double z = u[0] * v[1] - u[1] * v[0];
  return std::sqrt(x * x + y * y + z * z) / 2;
}

/// The triangles that a mesh's faces are cut into, each with the area of itself and all before it.
class Surface {
 public:
  explicit Surface(const Vantrel::Object& mesh)
      : positions_(dataProperty(mesh, "position", {"Math::float3", 1})) {
    const Orvel::Value sizes = dataProperty(mesh, "face_size", {"int", 1});
    const Orvel::Value corners = dataProperty(mesh, "corner_point", {"int", 1});
    std::uint64_t corner = 0;
    for (const std::int32_t size : arrayIn<std::int32_t>(sizes)) {
      const Orvel::Array<std::int32_t>& points = arrayIn<std::int32_t>(corners);
      if (size < 0 || static_cast<std::uint64_t>(size) > points.size - corner)
        throw NodeError("the mesh has fewer corners than its faces take");
      for (std::int32_t i = 2; i < size; ++i) {
        const std::int32_t* face = points.begin() + corner;
        addTriangle({position(face[0]), position(face[i - 1]), position(face[i])});
      }
      corner += static_cast<std::uint64_t>(size);
    }
    if (!(area() > 0)) throw NodeError("the mesh has no faces with an area");
  }

  double area() const { return areas_.empty() ? 0 : areas_.back(); }

  /// The triangle at a share of the area, from 0 up to 1.
  const Triangle& at(double share) const {
    const auto found = std::upper_bound(areas_.begin(), areas_.end() - 1, share * area());
    return triangles_[static_cast<std::size_t>(found - areas_.begin())];
  }

 private:
  Position position(std::int32_t point) const {
    const auto& positions = arrayIn<Vantrel::Math::float3>(positions_);
    if (point < 0 || static_cast<std::uint64_t>(point) >= positions.size)
      throw NodeError("the mesh has no point " + std::to_string(point));
    const auto& place = positions[static_cast<std::uint64_t>(point)].components;
    return {place[0], place[1], place[2]};
  }

  void addTriangle(const Triangle& triangle) {
    areas_.push_back(area() + areaOf(triangle));
    triangles_.push_back(triangle);
  }

  Orvel::Value positions_;
  std::vector<Triangle> triangles_;
  std::vector<double> areas_;
};

Orvel::Value scatter(const NodeCall& call) {
  const Surface surface(objectArgument(call));
  const std::uint64_t count = countArgument(call, 1, "the count");
  const std::uint64_t seed = countArgument(call, 2, "the seed");
  return arrayValue(generateArray<Vantrel::Math::float3>(count, [&](std::uint64_t i) {
    const auto& [a, b, c] = surface.at(randomNumber(seed, 3 * i));
    // The root keeps points from gathering at the first corner.
    const double root = std::sqrt(double{randomNumber(seed, 3 * i + 1)});
    const double share = randomNumber(seed, 3 * i + 2);
    Vantrel::Math::float3 point;
    for (std::size_t axis = 0; axis < 3; ++axis) {
      point.components[axis] = static_cast<float>(
          a[axis] + root * ((1 - share) * (b[axis] - a[axis]) + share * (c[axis] - a[axis])));
    }
    return point;
  }));
}

using namespace type_classes;

const NodeOperation meshOperations[] = {
    {"scatter",
     {{"mesh", &object}, {"count", &integer}, {"seed", &integer}},
     NodeSetting::none,
     [](const NodeTypes&) {
       return ValueType{"Math::float3", 1};
     },
     scatter,
     "Points spread evenly over the faces of a mesh, the same for the same seed everywhere."},
};

}  // namespace

std::span<const NodeOperation> meshes() { return meshOperations; }

}  // namespace vtlcmd::runner::node_families
