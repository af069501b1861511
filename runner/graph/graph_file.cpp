#include "graph/graph_file.h"

#include <system_error>

#include "graph/graph_error.h"
#include "readers/file_text.h"
#include "text/path_text.h"
#include "text/system_reason.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

/// Empty, for the working directory, without a file.
fs::path folderOf(const fs::path& file) {
  return (fs::is_symlink(file) ? fs::canonical(file) : file).parent_path();
}

}  // namespace

Graph loadGraph(const std::string& name) {
  try {
    return graphFrom(name, name == standardInput ? readStandardInput() : readFile(filePath(name)));
  } catch (const std::system_error& error) {
    throw GraphError(name, reasonOf(error));
  }
}

Graph graphFrom(const std::string& name, std::string_view text) {
  try {
    Graph graph = parseGraph(text);
    const fs::path file = name == standardInput ? fs::path() : filePath(name);
    if (graph.name.empty()) graph.name = file.empty() ? name : fileText(file.stem());
    const fs::path folder = folderOf(file);
    for (GraphNode& node : graph.nodes) node.pathFolder = folder;
    return graph;
  } catch (const std::system_error& error) {
    throw GraphError(name, reasonOf(error));
  } catch (const GraphError& error) {
    throw GraphError(name, error.what());
  }
}

}  // namespace vtlcmd::runner
