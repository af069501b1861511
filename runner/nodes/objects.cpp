#include <limits>

#include "nodes/families.h"
#include "nodes/integer_argument.h"
#include "nodes/object_data.h"
#include "vtlcmd/stand_in/any_bridge.h"
#include "vtlcmd/stand_in/geometry_builder.h"
#include "vtlcmd/stand_in/object_builder.h"

namespace vtlcmd::runner::node_families {
namespace {

using Vantrel::Object;

ValueType objectType(const NodeTypes&) { return {valueType<ObjectPtr>().name, 0}; }

Orvel::Value objectValue(Orvel::MutablePtr<Object> object) {
  return Orvel::makeValue<ObjectPtr>(std::move(object));
}

Orvel::Value setComponent(const NodeCall& call) {
  const Orvel::MutablePtr<Object> object = Vantrel::copyObject(objectArgument(call));
  const std::uint64_t count = countArgument(call, 2, "the count");
  if (!std::in_range<std::uint32_t>(count))
    throw NodeError("the count " + std::to_string(count) + " is above 4294967295");
  Vantrel::Geometry::setComponentProperty(*object, call[1].getString(),
                                          static_cast<std::uint32_t>(count));
  return objectValue(object);
}

Orvel::Value setData(const NodeCall& call) {
  const Orvel::MutablePtr<Object> object = Vantrel::copyObject(objectArgument(call));
  Vantrel::Geometry::setDataProperty(*object, call[1].getString(), Orvel::toAny(call[2]));
  return objectValue(object);
}

Orvel::Value getData(const NodeCall& call) {
  return dataProperty(objectArgument(call), call[1].getString(), call.resultType);
}

using namespace type_classes;

const NodeOperation objectOperations[] = {
    {"object",
     {},
     NodeSetting::none,
     objectType,
     [](const NodeCall&) { return objectValue(Vantrel::createObject()); },
     "A new object without properties."},
    {"set_component",
     {{"object", &object}, {"name", &text}, {"count", &integer}},
     NodeSetting::none,
     objectType,
     setComponent,
     "The object with a component property of so many elements."},
    {"set_data",
     {{"object", &object}, {"name", &text}, {"array", &anyArray}},
     NodeSetting::none,
     objectType,
     setData,
     "The object with a data property that holds an array."},
    {"get_data",
     {{"object", &object}, {"name", &text}},
     NodeSetting::type,
     [](const NodeTypes& types) { return *types.declared; },
     getData,
     "The array of a data property, which must be of the given type."},
};

}  // namespace

std::span<const NodeOperation> objects() { return objectOperations; }

}  // namespace vtlcmd::runner::node_families
