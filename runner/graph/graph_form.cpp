#include "graph/graph_form.h"

#include <string_view>

#include "vtlcmd/host/value_types.h"

namespace vtlcmd::runner {
namespace {

constexpr const char* upToTypes = R"(Description:
  A graph file is one JSON object: typed ports that values come in by, nodes
  that compute, and outputs that are reported. Every error names its place in
  the file, like $.nodes[3].op.

Example:
  {
    "name": "lift",
    "inputs": [
      {"name": "count", "type": "int", "default": 4},
      {"name": "offset", "type": "Math::float3", "default": [0, 2.5, 0]}
    ],
    "jobs": [{"name": "scale", "type": "float", "default": 1}],
    "nodes": [
      {"name": "steps", "op": "range", "in": {"count": "count"}},
      {"name": "heights", "op": "convert", "type": "array<float>",
       "in": {"value": "steps"}},
      {"name": "scaled", "op": "multiply",
       "in": {"a": "heights", "b": "scale"}},
      {"name": "lift", "op": "component",
       "in": {"vector": "offset", "index": "second"}},
      {"name": "second", "op": "constant", "type": "int", "value": 1},
      {"name": "sum", "op": "add", "in": {"a": "scaled", "b": "lift"}}
    ],
    "outputs": [{"name": "heights", "from": "sum"}]
  }

Members of the file:
  name         what the run is called; the file's name without it
  description  for people
  inputs       ports whose texts are given with -s
  jobs         ports whose texts are given with -j
  nodes        in any order, as long as they form no cycle
  outputs      reported in this order
  $schema      for editors; not read

Members of a port:
  name         without '='; ports and nodes share one set of names
  type         a type, see below
  default      its value when no text is given; without one the type's zero
  description  for people

Members of a node:
  name         what sources call it
  op           an operation; 'vtlcmd nodes' lists them with what they take
  in           by input of the operation a source, or a list of sources;
               a source is the name of a port or of a node
  type         the result's type, for the operations that ask for it
  value        of a constant
  description  for people

Members of an output:
  name         what reports call it
  from         a source
  description  for people

Types:
)";

constexpr const char* fromRecordsOn =
    R"(  Simulation::Time           the frame and its time; of ports only
  File::Project::SceneInfo   the scene file; of ports only
  array<TYPE>                to any depth
  Some more, like short and Math::float2x2, are there for the data of objects;
  the plug-in takes no value and gives no report of them.

Values:
  numbers      all 64 bits of integers; in floating types also "nan", "inf"
               and "-inf"
  bool         true, false
  string       a JSON text
  vectors      an array of the components: [0, 2.5, 0]
  matrices     an array of the components, row by row
  arrays       an array of the elements, nested as deep as the type
  Object       null; objects are built by nodes

Paths:
  A relative path that stands in a graph means the graph's folder; one that
  begins in a user's text means the working directory.

Texts of ports:
  A vector stands in the file as [0, 2.5, 0] and on the command line as
  0,2.5,0: 'vtlcmd ports GRAPH' lists the defaults as -s takes them, and says
  which ports take no text: those of an Object, of arrays and of the run's own
  facts.
)";

/// The names of the types that ports report, in indented lines.
std::string typeLines() {
  constexpr std::size_t width = 60;
  std::string lines;
  std::string line;
  const auto endLine = [&] {
    if (!line.empty()) lines += ' ' + line + '\n';
    line.clear();
  };
  forEachRow(registeredTypes, [&](const auto& row) {
    if (line.size() + std::string_view(row.name).size() > width) endLine();
    line.append(" ").append(row.name);
  });
  endLine();
  return lines;
}

}  // namespace

std::string graphForm() { return upToTypes + typeLines() + fromRecordsOn; }

}  // namespace vtlcmd::runner
