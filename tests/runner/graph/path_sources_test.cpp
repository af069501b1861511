#include "graph/path_sources.h"

#include <gtest/gtest.h>

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

/// A graph in the folder "graphs" whose node "mesh" takes its path from the source named.
Graph graphReading(const std::string& source) {
  Graph graph = parseGraph(R"({
    "inputs": [{"name": "frame", "type": "int"},
               {"name": "file", "type": "string"},
               {"name": "other", "type": "string", "default": "default.obj"}],
    "nodes": [
      {"name": "written", "op": "constant", "type": "string", "value": "written.obj"},
      {"name": "number", "op": "text", "in": {"value": "frame"}},
      {"name": "user_first", "op": "join", "in": {"parts": ["file", "number"], "separator": "written"}},
      {"name": "user_last", "op": "join", "in": {"parts": ["number", "file"], "separator": "file"}},
      {"name": "list", "op": "array", "in": {"elements": ["user_first", "other"]}},
      {"name": "mesh", "op": "read_mesh", "in": {"path": ")" +
                           source + R"("}}]})");
  for (GraphNode& node : graph.nodes) node.pathFolder = "graphs";
  return graph;
}

struct Case {
  const char* source;
  TextsByPort texts;
  fs::path folder;
  std::vector<fs::path> files;
};

class PathSources : public testing::TestWithParam<Case> {};

TEST_P(PathSources, BeginWhereTheFirstTextComesFrom) {
  Graph graph = graphReading(GetParam().source);
  lookUpTextsInWorkingDirectory(graph, GetParam().texts);
  EXPECT_EQ(graph.nodes.back().pathFolder, GetParam().folder);
  EXPECT_EQ(filesReadBy(graph, GetParam().texts), GetParam().files);
}

const std::optional<std::string> given = "given.obj";

INSTANTIATE_TEST_SUITE_P(
    All, PathSources,
    testing::Values(Case{"written", {{}, given, given}, "graphs", {"graphs/written.obj"}},
                    Case{"file", {{}, given, {}}, "", {"given.obj"}},
                    Case{"file", {{}, {}, given}, "graphs", {}},
                    Case{"other", {{}, given, {}}, "graphs", {"graphs/default.obj"}},
                    Case{"other", {{}, {}, given}, "", {"given.obj"}},
                    Case{"user_first", {"1", given, {}}, "", {}},
                    Case{"user_first", {"1", {}, given}, "graphs", {}},
                    Case{"user_last", {"1", given, {}}, "graphs", {}},
                    Case{"number", {"1", given, given}, "graphs", {}}));

TEST(PathSources, GoThroughArrays) {
  Graph graph = parseGraph(R"({
    "inputs": [{"name": "file", "type": "string"}, {"name": "index", "type": "int"}],
    "nodes": [
      {"name": "list", "op": "array", "in": {"elements": ["file"]}},
      {"name": "one", "op": "element", "in": {"array": "list", "index": "index"}},
      {"name": "mesh", "op": "read_mesh", "in": {"path": "one"}}]})");
  for (GraphNode& node : graph.nodes) node.pathFolder = "graphs";
  lookUpTextsInWorkingDirectory(graph, {"given.obj", std::nullopt});
  EXPECT_EQ(graph.nodes.back().pathFolder, "");
}

}  // namespace
}  // namespace vtlcmd::runner
