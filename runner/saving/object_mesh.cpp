#include "saving/object_mesh.h"

#include <stdexcept>
#include <string>

#include "text/library_text.h"
#include "values/value_type.h"
#include "vtlcmd/host/imports/vantrel_geometry.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

namespace Geometry = Vantrel::Geometry;

[[noreturn]] void refuse(std::string_view property, const std::string& reason) {
  throw std::invalid_argument("the property " + inQuotes(property) + " " + reason);
}

void requireSize(std::string_view property, std::size_t size, std::size_t expected) {
  if (size != expected) {
    refuse(property,
           "is for " + std::to_string(size) + " elements, not " + std::to_string(expected));
  }
}

/// Fills a mesh with the properties of an object.
class ObjectReader {
 public:
  explicit ObjectReader(const Vantrel::Object& object) : object_(object) {}

  MeshData read() {
    const auto data = Geometry::getDataGeoPropPrototype(Geometry::sGenericDataGeoProp);
    for (const Orvel::String& name : Geometry::getGeoPropNamesByPrototype(object_, *data))
      readData(name);
    if (mesh_.positions.empty()) throw std::invalid_argument("the mesh has no points");
    checkFaces();
    const auto components = Geometry::getComponentGeoPropPrototype();
    for (const Orvel::String& name : Geometry::getGeoPropNamesByPrototype(object_, *components))
      checkComponent(name);
    const std::size_t vertices =
        mesh_.faceSizes.empty() ? mesh_.positions.size() : mesh_.cornerPoints.size();
    if (!mesh_.normals.empty()) requireSize("normal", mesh_.normals.size(), vertices);
    if (!mesh_.uvs.empty()) requireSize("uv", mesh_.uvs.size(), vertices);
    if (!mesh_.colors.empty()) requireSize("color", mesh_.colors.size(), vertices);
    return std::move(mesh_);
  }

 private:
  void readData(const Orvel::String& name) {
    const std::string text = standardText(name);
    if (text == "position") return readArray(name, mesh_.positions);
    if (text == "face_size") return readArray(name, mesh_.faceSizes);
    if (text == "corner_point") return readArray(name, mesh_.cornerPoints);
    if (text == "normal") return readArray(name, mesh_.normals);
    if (text == "uv") return readArray(name, mesh_.uvs);
    if (text == "color") return readArray(name, mesh_.colors);
    refuse(text, "has no place in the file");
  }

  template <typename T>
  void readArray(const Orvel::String& name, std::vector<T>& elements) {
    const Any data = Geometry::getDataGeoProperty(object_, name)->propertyByKey(Geometry::sData);
    const auto* array = anyCast<StoredArray<T, 1>>(&data);
    if (array == nullptr || !*array)
      refuse(standardText(name), "holds no " + nameOf(ValueType{valueType<T>().name, 1}));
    elements.assign((*array)->begin(), (*array)->end());
  }

  void checkFaces() const {
    std::uint64_t corners = 0;
    for (const std::int32_t size : mesh_.faceSizes) {
      if (size < 0) refuse("face_size", "holds " + std::to_string(size));
      corners += static_cast<std::uint64_t>(size);
    }
    requireSize("corner_point", mesh_.cornerPoints.size(), corners);
    for (const std::int32_t point : mesh_.cornerPoints) {
      if (point < 0 || static_cast<std::size_t>(point) >= mesh_.positions.size())
        refuse("corner_point", "holds " + std::to_string(point) + ", which is no point");
    }
  }

  void checkComponent(const Orvel::String& name) const {
    const std::string text = standardText(name);
    const std::size_t count = Geometry::getElementCount(object_, name);
    if (text == "points") return requireSize(text, count, mesh_.positions.size());
    if (text == "faces") return requireSize(text, count, mesh_.faceSizes.size());
    if (text == "corners") return requireSize(text, count, mesh_.cornerPoints.size());
    refuse(text, "has no place in the file");
  }

  const Vantrel::Object& object_;
  MeshData mesh_;
};

}  // namespace

MeshData meshOf(const Vantrel::Object& object) { return ObjectReader(object).read(); }

}  // namespace vtlcmd::runner
