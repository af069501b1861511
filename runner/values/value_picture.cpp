#include "values/value_picture.h"

#include "text/json_writer.h"
#include "text/library_text.h"
#include "values/histogram.h"
#include "values/library_array.h"
#include "values/type_dispatch.h"
#include "vtlcmd/host/imports/vantrel_geometry.h"
#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

namespace Geometry = Vantrel::Geometry;

constexpr std::uint64_t mostPoints = 3000;
constexpr std::size_t mostComponents = 3;

/// Calls `function` with each array of the innermost level.
template <typename T, typename Function>
void forEachArray(std::uint32_t depth, const Orvel::Value& value, Function&& function) {
  if (depth == 1) return function(arrayIn<T>(value));
  Orvel::ArrayValue array(value);
  for (std::uint64_t i = 0; i < array.size(); ++i)
    forEachArray<T>(depth - 1, array.getElement(i), function);
}

/// The type in whose histogram numbers and truths of a type are counted.
template <typename T>
using Counted = std::conditional_t<std::is_same_v<T, bool>, std::uint8_t, T>;

template <typename T>
void writeHistogram(JsonWriter& json, const Histogram<T>& histogram) {
  json.open('{');
  json.key("histogram");
  json.open('{');
  json.key("low");
  json.number(histogram.low());
  json.key("width");
  json.number(histogram.width());
  json.key("counts");
  json.open('[');
  for (const std::uint64_t count : histogram.counts()) json.number(count);
  json.close(']');
  json.key("not_finite");
  json.number(histogram.notFinite());
  json.close('}');
  json.close('}');
}

template <typename T>
std::string histogramOf(std::uint32_t depth, const Orvel::Value& value) {
  Histogram<Counted<T>> histogram;
  forEachArray<T>(depth, value, [&](const Orvel::Array<T>& array) {
    for (const T number : array) histogram.bound(number);
  });
  if (histogram.isEmpty()) return "";
  forEachArray<T>(depth, value, [&](const Orvel::Array<T>& array) {
    for (const T number : array) histogram.count(number);
  });
  JsonWriter json;
  writeHistogram(json, histogram);
  return json.json();
}

/// Takes in arrays of vectors whose sizes sum up to `total`.
class PointSample {
 public:
  explicit PointSample(std::uint64_t total) : total_(total), wanted_(std::min(total, mostPoints)) {
    json_.open('{');
    json_.key("count");
    json_.number(total);
    json_.key("points");
    json_.open('[');
  }

  template <typename T>
  void add(const Orvel::Array<T>& array) {
    for (; taken_ < wanted_; ++taken_) {
      // The products stay far below 2^64: no array has so many vectors.
      const std::uint64_t place = taken_ * total_ / wanted_ - passed_;
      if (place >= array.size) break;
      addPoint(array.data[place]);
    }
    passed_ += array.size;
  }

  std::string json() {
    json_.close(']');
    json_.close('}');
    return json_.json();
  }

 private:
  template <typename T>
  void addPoint(const T& vector) {
    json_.open('[');
    for (std::size_t i = 0; i < std::min(vector.components.size(), mostComponents); ++i)
      json_.number(vector.components[i]);
    json_.close(']');
  }

  std::uint64_t total_;
  std::uint64_t wanted_;
  std::uint64_t taken_ = 0;
  std::uint64_t passed_ = 0;
  JsonWriter json_;
};

template <typename T>
std::string pointsOf(std::uint32_t depth, const Orvel::Value& value) {
  std::uint64_t total = 0;
  forEachArray<T>(depth, value, [&](const Orvel::Array<T>& array) { total += array.size; });
  if (total == 0) return "";
  PointSample sample(total);
  forEachArray<T>(depth, value, [&](const Orvel::Array<T>& array) { sample.add(array); });
  return sample.json();
}

/// Empty when the property's array isn't one of T.
template <typename T>
std::string pointsOf(const Any& property) {
  const auto* array = anyCast<StoredArray<T, 1>>(&property);
  if (array == nullptr || !*array || (*array)->size == 0) return "";
  PointSample sample((*array)->size);
  sample.add(**array);
  return sample.json();
}

std::string pointsOf(const ObjectPtr& object) {
  if (!object) return "";
  const auto data = Geometry::getDataGeoPropPrototype(Geometry::sGenericDataGeoProp);
  for (const Orvel::String& name : Geometry::getGeoPropNamesByPrototype(*object, *data)) {
    if (standardText(name) != "position") continue;
    const Any array = Geometry::getDataGeoProperty(*object, name)->propertyByKey(Geometry::sData);
    const std::string points = pointsOf<Math::float3>(array);
    return points.empty() ? pointsOf<Math::double3>(array) : points;
  }
  return "";
}

}  // namespace

std::string valuePicture(const ValueType& type, const Orvel::Value& value) {
  std::string picture;
  withTypeNamed(registeredTypes, type.element, [&]<typename T>() {
    if constexpr (std::is_same_v<T, ObjectPtr>) {
      if (type.depth == 0) picture = pointsOf(Orvel::valueAs<T>(value));
    } else if constexpr (Composite<T>) {
      if (type.depth > 0) picture = pointsOf<T>(type.depth, value);
    } else if constexpr (std::is_arithmetic_v<T>) {
      if (type.depth > 0) picture = histogramOf<T>(type.depth, value);
    }
  });
  return picture;
}

}  // namespace vtlcmd::runner
