#include "nodes/families.h"
#include "nodes/operand.h"
#include "readers/data_file.h"
#include "text/library_text.h"
#include "text/path_text.h"
#include "values/type_dispatch.h"

namespace vtlcmd::runner::node_families {
namespace {

std::filesystem::path fileArgument(const NodeCall& call) {
  return call.pathFolder / filePath(standardText(call[0].getString()));
}

/// What an array's declared type makes of the file's elements.
NpyForm formFor(const ValueType& type) {
  NpyForm form;
  withTypeNamed(registeredTypes, type.element,
                [&]<typename T>() { form = {.vectors = Composite<T>, .widened = true}; });
  return form;
}

Orvel::Value readArray(const NodeCall& call) {
  const std::filesystem::path file = fileArgument(call);
  std::vector<DataValue> values = readArrays(file, formFor(call.resultType));
  const std::string type = values.at(0).value.getType().getFullyQualifiedName().c_str();
  if (type != nameOf(call.resultType))
    throw NodeError(fileText(file) + " holds " + type + ", not " + nameOf(call.resultType));
  return std::move(values.at(0).value);
}

const std::vector<Parameter> path{{"path", &type_classes::path}};

const NodeOperation table[] = {
    {"read_npy", path, NodeSetting::type, [](const NodeTypes& types) { return *types.declared; },
     readArray,
     "The array in a NumPy file, which must be of the given type. Vectors are made of a last "
     "dimension of 2 to 4 floats."},
    {"read_mesh", path, NodeSetting::none,
     [](const NodeTypes&) {
       return ValueType{valueType<ObjectPtr>().name, 0};
     },
     [](const NodeCall& call) { return Orvel::makeValue(readMesh(fileArgument(call))); },
     "The mesh in an OBJ, PLY, STL or glTF file, as points, faces and corners."},
};

}  // namespace

std::span<const NodeOperation> files() { return table; }

}  // namespace vtlcmd::runner::node_families
