#include "graph/graph_file.h"

#include <system_error>

#include "graph/graph_error.h"
#include "readers/file_text.h"
#include "text/path_text.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

fs::path folderOf(const fs::path& file) {
  return (fs::is_symlink(file) ? fs::canonical(file) : file).parent_path();
}

Graph loadFile(const fs::path& file) {
  Graph graph = parseGraph(readFile(file));
  if (graph.name.empty()) graph.name = fileText(file.stem());
  const fs::path folder = folderOf(file);
  for (GraphNode& node : graph.nodes) node.pathFolder = folder;
  return graph;
}

Graph loadStandardInput() {
  Graph graph = parseGraph(readStandardInput());
  if (graph.name.empty()) graph.name = standardInput;
  return graph;
}

}  // namespace

Graph loadGraph(const std::string& name) {
  try {
    return name == standardInput ? loadStandardInput() : loadFile(filePath(name));
  } catch (const std::system_error& error) {
    throw GraphError(name, reasonOf(error));
  } catch (const GraphError& error) {
    throw GraphError(name, error.what());
  }
}

}  // namespace vtlcmd::runner
