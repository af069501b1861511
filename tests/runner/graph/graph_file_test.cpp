#include "graph/graph_file.h"

#include <gtest/gtest.h>

#include "graph/graph_error.h"
#include "runner/support/temporary_folder.h"
#include "text/path_text.h"

namespace vtlcmd::runner {
namespace {

namespace fs = std::filesystem;

constexpr const char* reader = R"({"inputs": [{"name": "file", "type": "string"}], "nodes": [
  {"name": "mesh", "op": "read_mesh", "in": {"path": "file"}}]})";

std::string graphFileRefusal(const fs::path& file) {
  try {
    loadGraph(fileText(file));
  } catch (const GraphError& error) {
    return error.what();
  }
  return "accepted";
}

TEST(GraphFile, PathsMeanTheFoldersFile) {
  const TemporaryFolder folder;
  const Graph graph = loadGraph(fileText(folder.file("reader.json", reader)));
  EXPECT_EQ(graph.name, "reader");
  ASSERT_EQ(graph.nodes.size(), 1U);
  EXPECT_EQ(graph.nodes[0].pathFolder, (folder / "graph.json").parent_path());
}

TEST(GraphFile, PathsMeanTheFolderThatALinkLeadsTo) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "inner");
  folder.file("inner/reader.json", reader);
  if (!makeLink("inner/reader.json", folder / "link.json")) GTEST_SKIP() << "no links here";
  const Graph graph = loadGraph(fileText(folder / "link.json"));
  EXPECT_EQ(graph.name, "link");
  ASSERT_EQ(graph.nodes.size(), 1U);
  EXPECT_EQ(graph.nodes[0].pathFolder, fs::canonical(folder / "inner"));
}

TEST(GraphFile, TheSystemsReasonIsTold) {
  const TemporaryFolder folder;
  EXPECT_EQ(graphFileRefusal(folder / "absent"),
            fileText(folder / "absent") + ": No such file or directory");
  fs::create_directory(folder / "inner");
  EXPECT_EQ(graphFileRefusal(folder / "inner"), fileText(folder / "inner") + ": Is a directory");
  EXPECT_EQ(graphFileRefusal(folder.file("bad.json", "[]")),
            fileText(folder / "bad.json") + ": $: expected an object, found an array");
}

}  // namespace
}  // namespace vtlcmd::runner
