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

/// The value of a name, the only one if the name is empty.
DataValue takeNamed(std::vector<DataValue> values, const ValuePath& path) {
  if (path.name.empty() && values.size() == 1) return std::move(values[0]);
  std::string names;
  for (DataValue& value : values) {
    if (!path.name.empty() && value.name == path.name) return std::move(value);
    if (!value.name.empty()) names += (names.empty() ? "" : ", ") + inQuotes(value.name);
  }
  const std::string file = fileText(path.file);
  if (names.empty()) throw NodeError(file + " has one value without a name");
  throw NodeError(file + " holds " + names + "; one of them is to be named, like " + file + "/" +
                  values.back().name);
}

Orvel::Value readArray(const NodeCall& call) {
  const std::filesystem::path path = fileArgument(call);
  const ValuePath wanted = valuePathFrom(path);
  call.onRead(wanted.file);
  DataValue data = takeNamed(readArrays(wanted.file, formFor(call.resultType)), wanted);
  const std::string type = data.value.getType().getFullyQualifiedName().c_str();
  if (type != nameOf(call.resultType))
    throw NodeError(fileText(path) + " holds " + type + ", not " + nameOf(call.resultType));
  return data.value;
}

Orvel::Value readMeshNode(const NodeCall& call) {
  const std::filesystem::path file = fileArgument(call);
  call.onRead(file);
  const DataValue mesh = readMesh(file);
  for (const std::string& warning : mesh.warnings) call.warn(fileText(file) + ": " + warning);
  return mesh.value;
}

const std::vector<Parameter> path{{"path", &type_classes::path}};

const NodeOperation fileOperations[] = {
    {"read_npy", path, NodeSetting::type, [](const NodeTypes& types) { return *types.declared; },
     readArray,
     "The array in a NumPy file, which must be of the given type. Vectors are made of a last "
     "dimension of 2 to 4 floats. FILE.npz/NAME is an array in an archive of such files, and "
     "FILE.csv/NAME a column of a table."},
    {"read_mesh", path, NodeSetting::none,
     [](const NodeTypes&) {
       return ValueType{valueType<ObjectPtr>().name, 0};
     },
     readMeshNode, "The mesh in an OBJ, PLY, STL or glTF file, as points, faces and corners."},
};

}  // namespace

std::span<const NodeOperation> files() { return fileOperations; }

}  // namespace vtlcmd::runner::node_families
